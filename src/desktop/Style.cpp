#include "desktop/Style.hpp"

#include "desktop/gtk/Reference.hpp"

#include <gtk/gtk.h>

namespace desktop {

namespace {

// The ring of the focus is seen on light and dark: white within, dark without.
constexpr const char* style = R"(
window.nurva-card-window { background: none; box-shadow: none; border-radius: 0; }
window.nurva-framed-card { background: #16191b; }
nurva-control { border-radius: 5px; }
window.nurva-by-keys nurva-control:focus {
    outline: 2px solid white;
    outline-offset: 0;
    box-shadow: 0 0 0 4px rgba(0, 0, 0, 0.7);
}
nurva-card { border-radius: 28px; }
window.nurva-by-keys nurva-card:focus { outline: 2px solid white; outline-offset: -5px; }
.nurva-stopped { font-family: Inter, sans-serif; }
.nurva-stopped { color: #e8ebec; margin: 12px; }
.nurva-stopped-title { font-weight: 600; font-size: 12px; }
.nurva-stopped-line { color: #98a0a4; font-size: 11px; }
popover.nurva-opaque > contents { margin: 0; border-radius: 0; box-shadow: none; }
.nurva-gallery { margin: 24px; }
.nurva-gallery-name { font-weight: 600; }
)";

}  // namespace

void installStyle(GdkDisplay* display) {
    const auto provider = adopted(gtk_css_provider_new());
    gtk_css_provider_load_from_data(provider.get(), style, -1);
    gtk_style_context_add_provider_for_display(display, GTK_STYLE_PROVIDER(provider.get()),
                                               GTK_STYLE_PROVIDER_PRIORITY_APPLICATION);
}

}  // namespace desktop

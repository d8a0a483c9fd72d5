#include "desktop/Zoom.hpp"

#include "desktop/gtk/Reference.hpp"

#include <algorithm>
#include <cmath>

namespace desktop {

namespace {

constexpr double plainResolution = 96.0 * 1024;

int pixelsPerUnit(GdkDisplay* display) {
    const auto first = adopted(
        static_cast<GdkMonitor*>(g_list_model_get_item(gdk_display_get_monitors(display), 0)));
    return first ? gdk_monitor_get_scale_factor(first.get()) : 1;
}

}  // namespace

double unitsPerPoint(GdkDisplay* display, std::optional<double> scale) {
    if (scale)
        return *scale / pixelsPerUnit(display);
    int resolution = 0;
    g_object_get(gtk_settings_get_for_display(display), "gtk-xft-dpi", &resolution, nullptr);
    if (resolution <= 0)
        return 1;
    return std::clamp(std::round(resolution / plainResolution * 4) / 4, 1.0, 4.0);
}

}  // namespace desktop

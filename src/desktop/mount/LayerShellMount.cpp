#include "desktop/mount/LayerShellMount.hpp"

#ifdef NURVA_LAYER_SHELL
#include <gtk4-layer-shell.h>

#include <cmath>
#endif

namespace desktop {

#ifdef NURVA_LAYER_SHELL

namespace {

class LayerShellMount : public Mount {
  public:
    void prepare(GtkWindow* window) override {
        gtk_window_set_decorated(window, FALSE);
        // Surfaces are closed with their monitor, which is no wish of the user's to be without
        // them.
        connect<gboolean()>(window, "close-request", [] { return TRUE; });
        gtk_layer_init_for_window(window);
        gtk_layer_set_namespace(window, "nurva-widget");
        gtk_layer_set_layer(window, GTK_LAYER_SHELL_LAYER_BOTTOM);
        gtk_layer_set_keyboard_mode(window, GTK_LAYER_SHELL_KEYBOARD_MODE_ON_DEMAND);
        gtk_layer_set_anchor(window, GTK_LAYER_SHELL_EDGE_LEFT, TRUE);
        gtk_layer_set_anchor(window, GTK_LAYER_SHELL_EDGE_TOP, TRUE);
    }

    void move(GtkWindow* window, GdkMonitor* monitor, views::Point point) override {
        const views::Rect whole = area(monitor);
        gtk_layer_set_monitor(window, monitor);
        gtk_layer_set_margin(window, GTK_LAYER_SHELL_EDGE_LEFT,
                             static_cast<int>(std::lround(point.x - whole.x)));
        gtk_layer_set_margin(window, GTK_LAYER_SHELL_EDGE_TOP,
                             static_cast<int>(std::lround(point.y - whole.y)));
    }
};

}  // namespace

std::unique_ptr<Mount> layerShellMount() {
    return gtk_layer_is_supported() ? std::make_unique<LayerShellMount>() : nullptr;
}

#else

std::unique_ptr<Mount> layerShellMount() {
    return nullptr;
}

#endif

}  // namespace desktop

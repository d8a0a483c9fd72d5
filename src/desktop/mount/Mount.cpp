#include "desktop/mount/Mount.hpp"

#include "desktop/mount/LayerShellMount.hpp"
#include "desktop/mount/WindowMount.hpp"
#include "desktop/mount/X11Mount.hpp"

#include <gdk/x11/gdkx.h>

namespace desktop {

views::Rect Mount::area(GdkMonitor* monitor) const {
    GdkRectangle geometry;
    gdk_monitor_get_geometry(monitor, &geometry);
    return {static_cast<double>(geometry.x), static_cast<double>(geometry.y),
            static_cast<double>(geometry.width), static_cast<double>(geometry.height)};
}

std::unique_ptr<Mount> chooseMount(GdkDisplay* display, Wanted wanted) {
    if (wanted == Wanted::desktop && GDK_IS_X11_DISPLAY(display))
        return std::make_unique<X11Mount>(display);
    if (wanted == Wanted::desktop)
        if (auto mount = layerShellMount())
            return mount;
    return std::make_unique<WindowMount>();
}

}  // namespace desktop

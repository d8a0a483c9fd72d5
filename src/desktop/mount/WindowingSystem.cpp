#include "desktop/mount/WindowingSystem.hpp"

#include "platform/foundation/localization/Message.hpp"

#include <X11/Xlib.h>
#include <gdk/x11/gdkx.h>
#include <gtk/gtk.h>
#include <unistd.h>

#include <cstdlib>
#include <string>

namespace desktop {

namespace {

/// Whoever has lost his display can only say so; Xlib ends the process when this returns.
int endWithoutServer(Display* /*display*/) {
    const std::string text =
        "nurva-desktop: " + foundation::message("se ha perdido la pantalla") + "\n";
    (void)!::write(STDERR_FILENO, text.data(), text.size());
    ::_exit(1);
}

}  // namespace

bool openDisplay(bool forWindows) {
    // Cards are pictures: drawn by the processor they take a fraction of the memory that the
    // drivers of a graphics card do.
    constexpr int unlessSet = 0;
    ::setenv("GSK_RENDERER", "cairo", unlessSet);
    ::setenv("GDK_DEBUG", "gl-disable", unlessSet);
#ifndef NURVA_LAYER_SHELL
    // Without layers on Wayland, its X server is the way to the desktop.
    if (!forWindows)
        gdk_set_allowed_backends("x11,*");
#endif
    if (!gtk_init_check())
        return false;
    if (GDK_IS_X11_DISPLAY(gdk_display_get_default()))
        XSetIOErrorHandler(endWithoutServer);
    return true;
}

}  // namespace desktop

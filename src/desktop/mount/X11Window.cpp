#include "desktop/mount/X11Window.hpp"

#include <X11/Xatom.h>
#include <X11/Xutil.h>
#include <X11/extensions/shape.h>
#include <gdk/x11/gdkx.h>

#include <array>
#include <memory>
#include <vector>

namespace desktop {

namespace {

/// Errors of the server while it lives are nobody's business.
class ErrorTrap {
  public:
    explicit ErrorTrap(GdkDisplay* display) : display_(display) {
        gdk_x11_display_error_trap_push(display_);
    }
    ErrorTrap(const ErrorTrap&) = delete;
    ErrorTrap& operator=(const ErrorTrap&) = delete;
    ~ErrorTrap() { gdk_x11_display_error_trap_pop_ignored(display_); }

  private:
    GdkDisplay* display_;
};

template <std::size_t count>
void setProperty(Display* display,
                 Window window,
                 Atom property,
                 Atom type,
                 const std::array<long, count>& values) {
    // The library takes numbers of 32 bits as longs, whatever their size.
    XChangeProperty(display, window, property, type, 32, PropModeReplace,
                    reinterpret_cast<const unsigned char*>(values.data()), count);
}

}  // namespace

X11Window::X11Window(GtkWindow* window) {
    GdkSurface* surface = gtk_native_get_surface(GTK_NATIVE(window));
    gdkDisplay_ = gdk_surface_get_display(surface);
    display_ = gdk_x11_display_get_xdisplay(gdkDisplay_);
    window_ = gdk_x11_surface_get_xid(surface);
    scale_ = gdk_surface_get_scale_factor(surface);
}

Atom X11Window::atom(const char* name) const {
    return gdk_x11_get_xatom_by_name_for_display(gdkDisplay_, name);
}

void X11Window::ask(const char* what, long first, long second, long third) const {
    XEvent event{};
    XClientMessageEvent& message = event.xclient;
    message.type = ClientMessage;
    message.window = window_;
    message.message_type = atom(what);
    message.format = 32;
    message.data.l[0] = first;
    message.data.l[1] = second;
    message.data.l[2] = third;
    message.data.l[3] = 1;  // an application asks
    XSendEvent(display_, DefaultRootWindow(display_), False,
               SubstructureNotifyMask | SubstructureRedirectMask, &event);
}

void X11Window::layBelow() const {
    constexpr long everyDesktop = 0xFFFFFFFF;
    constexpr long add = 1;
    const ErrorTrap trap(gdkDisplay_);
    const auto state = [&](const char* name) { return static_cast<long>(atom(name)); };
    const std::array states{state("_NET_WM_STATE_BELOW"), state("_NET_WM_STATE_STICKY"),
                            state("_NET_WM_STATE_SKIP_TASKBAR"), state("_NET_WM_STATE_SKIP_PAGER")};
    setProperty(display_, window_, atom("_NET_WM_STATE"), XA_ATOM, states);
    setProperty(display_, window_, atom("_NET_WM_DESKTOP"), XA_CARDINAL, std::array{everyDesktop});
    ask("_NET_WM_STATE", add, states[0], states[1]);
    ask("_NET_WM_STATE", add, states[2], states[3]);
    ask("_NET_WM_DESKTOP", everyDesktop, 1);
}

void X11Window::move(int x, int y) const {
    const ErrorTrap trap(gdkDisplay_);
    const std::unique_ptr<XSizeHints, int (*)(void*)> hints(XAllocSizeHints(), XFree);
    long supplied = 0;
    XGetWMNormalHints(display_, window_, hints.get(), &supplied);
    hints->flags |= USPosition;
    hints->x = x;
    hints->y = y;
    XSetWMNormalHints(display_, window_, hints.get());
    XMoveWindow(display_, window_, x, y);
}

void X11Window::cut(const cairo_region_t& pixels) const {
    const ErrorTrap trap(gdkDisplay_);
    std::vector<XRectangle> rows;
    for (int i = 0; i < cairo_region_num_rectangles(&pixels); ++i) {
        cairo_rectangle_int_t row;
        cairo_region_get_rectangle(&pixels, i, &row);
        rows.push_back({static_cast<short>(row.x), static_cast<short>(row.y),
                        static_cast<unsigned short>(row.width),
                        static_cast<unsigned short>(row.height)});
    }
    XShapeCombineRectangles(display_, window_, ShapeBounding, 0, 0, rows.data(),
                            static_cast<int>(rows.size()), ShapeSet, YXBanded);
}

void X11Window::uncut() const {
    const ErrorTrap trap(gdkDisplay_);
    XShapeCombineMask(display_, window_, ShapeBounding, 0, 0, None, ShapeSet);
}

}  // namespace desktop

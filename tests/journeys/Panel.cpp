#include "journeys/Panel.hpp"

#include <X11/Xatom.h>
#include <X11/Xlib.h>

#include <array>
#include <stdexcept>

namespace journeys {

namespace {

template <std::size_t count>
void set(Display* display,
         Window window,
         const char* name,
         Atom type,
         const std::array<long, count>& values) {
    XChangeProperty(display, window, XInternAtom(display, name, False), type, 32, PropModeReplace,
                    reinterpret_cast<const unsigned char*>(values.data()), count);
}

}  // namespace

Panel::Panel(int height) : display_(XOpenDisplay(nullptr)) {
    if (!display_)
        throw std::runtime_error("no display");
    Display* display = display_.get();
    constexpr unsigned width = 1280;
    const Window window = XCreateSimpleWindow(display, DefaultRootWindow(display), 0, 0, width,
                                              static_cast<unsigned>(height), 0, 0, 0);
    const auto dock = static_cast<long>(XInternAtom(display, "_NET_WM_WINDOW_TYPE_DOCK", False));
    set(display, window, "_NET_WM_WINDOW_TYPE", XA_ATOM, std::array{dock});
    set(display, window, "_NET_WM_STRUT_PARTIAL", XA_CARDINAL,
        std::array<long, 12>{0, 0, height, 0, 0, 0, 0, 0, 0, width - 1, 0, 0});
    set(display, window, "_NET_WM_DESKTOP", XA_CARDINAL, std::array<long, 1>{0xFFFFFFFF});
    XMapWindow(display, window);
    XSync(display, False);
}

void Panel::Disconnect::operator()(_XDisplay* display) const {
    XCloseDisplay(display);
}

}  // namespace journeys

#include "journeys/SettingsManager.hpp"

#include <X11/Xlib.h>

#include <bit>
#include <cstdint>
#include <string>
#include <string_view>

namespace journeys {

namespace {

template <class Number>
void append(std::string& bytes, Number number) {
    bytes.append(reinterpret_cast<const char*>(&number), sizeof number);
}

}  // namespace

SettingsManager::SettingsManager(_XDisplay* display)
    : display_(display),
      window_(XCreateSimpleWindow(display, DefaultRootWindow(display), -1, -1, 1, 1, 0, 0, 0)) {
    const Atom selection = XInternAtom(display, "_XSETTINGS_S0", False);
    XSetSelectionOwner(display, selection, window_, CurrentTime);
    setResolution(96);
    XEvent event{};
    event.xclient.type = ClientMessage;
    event.xclient.window = DefaultRootWindow(display);
    event.xclient.message_type = XInternAtom(display, "MANAGER", False);
    event.xclient.format = 32;
    event.xclient.data.l[1] = static_cast<long>(selection);
    event.xclient.data.l[2] = static_cast<long>(window_);
    XSendEvent(display, DefaultRootWindow(display), False, StructureNotifyMask, &event);
    XSync(display, False);
}

void SettingsManager::setResolution(int dotsPerInch) {
    constexpr std::string_view name = "Xft/DPI";
    constexpr std::uint32_t one = 1;
    ++serial_;
    std::string settings;
    append(settings, std::uint32_t{std::endian::native == std::endian::big});
    append(settings, serial_);
    append(settings, one);
    append(settings, std::uint16_t{0});  // a number
    append(settings, static_cast<std::uint16_t>(name.size()));
    settings += name;
    settings.append((4 - name.size() % 4) % 4, '\0');
    append(settings, serial_);
    append(settings, dotsPerInch * 1024);
    const Atom property = XInternAtom(display_, "_XSETTINGS_SETTINGS", False);
    XChangeProperty(display_, window_, property, property, 8, PropModeReplace,
                    reinterpret_cast<const unsigned char*>(settings.data()),
                    static_cast<int>(settings.size()));
    XSync(display_, False);
}

}  // namespace journeys

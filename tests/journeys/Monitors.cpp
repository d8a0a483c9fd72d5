#include "journeys/Monitors.hpp"

#include "support/Program.hpp"

#include <stdexcept>

namespace journeys {

namespace {

/// A graphics card that draws into memory, with as many sockets as one could wish. It has nothing
/// to do with the keyboards and mice of the machine.
constexpr const char* settings = R"(
Section "ServerFlags"
    Option "AutoAddDevices" "false"
    Option "AutoEnableDevices" "false"
EndSection
Section "Device"
    Identifier "card"
    Driver "dummy"
    VideoRam 32768
    Option "Monitor-DUMMY0" "left"
    Option "Monitor-DUMMY1" "right"
EndSection
Section "Monitor"
    Identifier "left"
    HorizSync 5-1000
    VertRefresh 5-200
    Modeline "wide" 60 1280 1328 1360 1440 800 803 809 823
    Option "PreferredMode" "wide"
    Option "Primary" "true"
EndSection
Section "Monitor"
    Identifier "right"
    HorizSync 5-1000
    VertRefresh 5-200
    Modeline "wide" 60 1280 1328 1360 1440 800 803 809 823
    Modeline "small" 40 800 840 968 1056 600 601 605 628
    Option "PreferredMode" "wide"
    Option "RightOf" "left"
    Option "Enable" "true"
EndSection
Section "Screen"
    Identifier "desk"
    Device "card"
    DefaultDepth 24
    SubSection "Display"
        Virtual 2560 1280
    EndSubSection
EndSection
)";

/// Not the one in the path, which leaves servers to whoever sits in front of the machine.
constexpr const char* program = "/usr/lib/xorg/Xorg";

}  // namespace

Monitors::Monitors() {
    const auto file = folder_.write("xorg.conf", settings).string();
    server_ = std::string(program) + " -config '" + file + "' -logfile '" +
              (folder_.path() / "log").string() + "' -extension GLX";
}

void Monitors::change(const std::string& arguments) const {
    const auto outcome = support::run("xrandr " + arguments);
    if (outcome.status != 0)
        throw std::runtime_error("xrandr " + arguments + ": " + outcome.errors);
}

}  // namespace journeys

#include "journeys/UserHome.hpp"

#include <cstdlib>
#include <filesystem>

namespace journeys {

UserHome::UserHome() {
    const auto own = [&](const char* variable, const char* name) {
        const std::filesystem::path path = folder.path() / name;
        std::filesystem::create_directory(path);
        std::filesystem::permissions(path, std::filesystem::perms::owner_all);
        ::setenv(variable, path.c_str(), 1);
    };
    own("HOME", "home");
    own("XDG_RUNTIME_DIR", "run");
    own("XDG_DATA_HOME", "data");
    own("XDG_CONFIG_HOME", "config");
    ::setenv("LC_ALL", "C.UTF-8", 1);
    ::setenv("LANGUAGE", "es", 1);
    ::setenv("GTK_A11Y", "atspi", 1);
    ::setenv("GTK_THEME", "Default", 1);
    ::setenv("GSETTINGS_BACKEND", "memory", 1);
    ::setenv("NURVA_BUNDLE", NURVA_RESOURCES_FOLDER "/NurvaWidgets.appex", 1);
    ::unsetenv("WAYLAND_DISPLAY");
    ::unsetenv("AT_SPI_BUS_ADDRESS");
    // What looks for leaks at a process's end would have to trace it, which its confinement
    // forbids.
    ::setenv("ASAN_OPTIONS", "detect_leaks=0", 1);
}

}  // namespace journeys

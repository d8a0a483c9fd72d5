#include "platform/canvas/FontFolders.hpp"

namespace canvas {

std::vector<std::filesystem::path> fontFolders(const foundation::EnvironmentVariables& variables) {
    // Thai words are told apart by a dictionary.
    std::vector<std::filesystem::path> folders{
        "/usr/share/fonts",      "/usr/local/share/fonts",    "/etc/fonts",
        "/usr/share/fontconfig", "/usr/share/xml/fontconfig", "/var/cache/fontconfig",
        "/usr/share/libthai"};
    const auto addUsers = [&](const char* variable, const char* usual, const char* folder) {
        if (const auto named = variables.value(variable))
            folders.push_back(std::filesystem::path(*named) / folder);
        else if (const auto home = variables.value("HOME"))
            folders.push_back(std::filesystem::path(*home) / usual / folder);
    };
    addUsers("XDG_DATA_HOME", ".local/share", "fonts");
    addUsers("XDG_CONFIG_HOME", ".config", "fontconfig");
    addUsers("XDG_CACHE_HOME", ".cache", "fontconfig");
    if (const auto home = variables.value("HOME"))
        for (const char* folder : {".fonts", ".fontconfig"})
            folders.push_back(std::filesystem::path(*home) / folder);
    return folders;
}

}  // namespace canvas

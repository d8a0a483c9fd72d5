#include "platform/foundation/bundle/InstalledProgram.hpp"

#include <unistd.h>

#include <system_error>

namespace foundation {

std::optional<std::filesystem::path> installedProgram(std::string_view name) {
    std::error_code ignored;
    const auto folder = std::filesystem::read_symlink("/proc/self/exe", ignored).parent_path();
    for (const auto& place : {folder, folder.parent_path() / "libexec" / "nurva-widgets"}) {
        const auto program = place / name;
        if (::access(program.c_str(), X_OK) == 0)
            return program;
    }
    return std::nullopt;
}

}  // namespace foundation

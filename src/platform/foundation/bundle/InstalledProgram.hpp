#pragma once

#include <filesystem>
#include <optional>
#include <string_view>

namespace foundation {

/// Another program of this installation: beside the running one, or where programs stand that users
/// do not call themselves. Nothing where there is none.
std::optional<std::filesystem::path> installedProgram(std::string_view name);

}  // namespace foundation

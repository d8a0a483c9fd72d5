#pragma once

#include "platform/foundation/EnvironmentVariables.hpp"

#include <filesystem>
#include <vector>

namespace canvas {

/// Whatever a process has to be able to read to find and open the fonts of the system and of the
/// user: fonts, their configuration and its caches. Not all of them need be there.
std::vector<std::filesystem::path> fontFolders(const foundation::EnvironmentVariables& variables);

}  // namespace canvas

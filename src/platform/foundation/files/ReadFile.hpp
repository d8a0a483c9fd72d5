#pragma once

#include <cstddef>
#include <filesystem>
#include <string>

namespace foundation {

/// The largest file that is read. Whatever a snapshot of so many bytes holds, its faces are drawn
/// within a second, and in the memory that an extension may have.
inline constexpr std::size_t maximumFileBytes = std::size_t{2} << 20;

/// The whole contents of a regular file as it stands at this moment. The folder may be hostile:
/// nothing that can block or never end is opened for longer than it takes to see what it is. Any
/// thread. Throws FileError: missing, unreadable, no regular file, or more than `maximumBytes`.
std::string readFile(const std::filesystem::path& path,
                     std::size_t maximumBytes = maximumFileBytes);

}  // namespace foundation

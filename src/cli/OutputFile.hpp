#pragma once

#include <string>
#include <string_view>

namespace cli {

/// Writes the bytes to a file whole or not at all, or to standard output where no file is named.
/// What exists and is no regular file (a device, a pipe) is written to as it stands. Throws
/// Failure.
void writeOutput(const std::string& file, std::string_view bytes);

}  // namespace cli

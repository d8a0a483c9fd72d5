#pragma once

#include <filesystem>
#include <string_view>

namespace widgethost {

/// Replaces a file, or makes one with the folders on the way to it: whoever reads it reads the old
/// one or the new one, whole, also after a power cut at any moment. It is on the disk when this
/// returns. Throws foundation::FileError: then the old file stands there.
void writeFileDurably(std::string_view bytes, const std::filesystem::path& path);

}  // namespace widgethost

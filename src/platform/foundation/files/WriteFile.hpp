#pragma once

#include "platform/foundation/files/FileCalls.hpp"

#include <filesystem>
#include <string_view>

namespace foundation {

/// Puts a new file with these bytes in the place of what stands at the path: whoever reads it reads
/// one file or the other, whole. A regular file hands its mode on; a link is replaced, not
/// followed. Of several writers the last one wins. What a crashed writer has left in the folder is
/// removed. Does not wait for the disk. Any thread. Throws FileError: then the old file stands
/// there, and nothing else is in the folder.
void writeFileAtomically(std::string_view bytes,
                         const std::filesystem::path& path,
                         const FileCalls& calls = FileCalls::ofSystem());

/// Does the same for a file that has to outlast a power cut at any moment: it is on the disk when
/// this returns, with the folders on the way to it, which are made where they are missing. Folders
/// and file are for the user alone. Throws FileError: then one file or the other stands there.
void writeFileDurably(std::string_view bytes,
                      const std::filesystem::path& path,
                      const FileCalls& calls = FileCalls::ofSystem());

}  // namespace foundation

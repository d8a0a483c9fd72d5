#include "platform/foundation/WriteFile.hpp"

#include "platform/foundation/FileError.hpp"
#include "platform/foundation/ReplacementFile.hpp"

#include <cerrno>

namespace foundation {

void writeFileAtomically(std::string_view bytes,
                         const std::filesystem::path& path,
                         const FileCalls& calls) {
    // A name with a NUL inside would replace the file named by its beginning.
    if (path.native().find('\0') != std::string::npos)
        throw FileError(EINVAL, path);
    removeLeftOverReplacements(path.parent_path(), calls);

    struct stat old {};
    if (calls.lstat(path.c_str(), &old) != 0 && errno != ENOENT)
        throw FileError(errno, path);
    const bool replacesFile = S_ISREG(old.st_mode);
    // What may be private stays so until it has the mode of the file that it replaces.
    ReplacementFile replacement(path, replacesFile ? 0600 : 0666, calls);
    if (replacesFile)
        replacement.changeMode(old.st_mode & 07777);
    replacement.write(bytes);
    replacement.takePlace(replacesFile);
}

}  // namespace foundation

#include "platform/foundation/files/WriteFile.hpp"

#include "platform/foundation/files/FileDescriptor.hpp"
#include "platform/foundation/files/FileError.hpp"
#include "platform/foundation/files/ReplacementFile.hpp"

#include <fcntl.h>

#include <cerrno>

namespace foundation {
namespace {

/// Makes room for a new file: removes what crashed writers have left over.
void prepare(const std::filesystem::path& path, const FileCalls& calls) {
    // A name with a NUL inside would replace the file named by its beginning.
    if (path.native().find('\0') != std::string::npos)
        throw FileError(EINVAL, path);
    removeLeftOverReplacements(path.parent_path(), calls);
}

/// Puts the names in a folder on the disk. Some file systems cannot and need not.
void synchronize(const std::filesystem::path& folder, const FileCalls& calls) {
    const char* const name = folder.empty() ? "." : folder.c_str();
    const FileDescriptor file(calls.open(name, O_RDONLY | O_DIRECTORY | O_CLOEXEC, 0));
    if (!file || (calls.fsync(file.number()) != 0 && errno != EINVAL))
        throw FileError(errno, folder);
}

/// Makes a folder with those on the way to it, unless it is there.
void makeFolder(const std::filesystem::path& folder, const FileCalls& calls) {
    if (folder.empty())
        return;
    constexpr mode_t forTheUserAlone = 0700;
    int made = calls.mkdir(folder.c_str(), forTheUserAlone);
    if (made != 0 && errno == ENOENT && folder.has_relative_path()) {
        makeFolder(folder.parent_path(), calls);
        made = calls.mkdir(folder.c_str(), forTheUserAlone);
    }
    if (made != 0 && errno != EEXIST)
        throw FileError(errno, folder);
    if (made == 0)
        synchronize(folder.parent_path(), calls);
}

}  // namespace

void writeFileAtomically(std::string_view bytes,
                         const std::filesystem::path& path,
                         const FileCalls& calls) {
    prepare(path, calls);
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

void writeFileDurably(std::string_view bytes,
                      const std::filesystem::path& path,
                      const FileCalls& calls) {
    makeFolder(path.parent_path(), calls);
    prepare(path, calls);
    ReplacementFile replacement(path, 0600, calls);
    replacement.write(bytes);
    replacement.synchronize();
    replacement.takePlace(false);
    synchronize(path.parent_path(), calls);
}

}  // namespace foundation

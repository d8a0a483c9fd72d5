#include "platform/foundation/files/ReadFile.hpp"

#include "platform/foundation/files/FileDescriptor.hpp"
#include "platform/foundation/files/FileError.hpp"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

namespace foundation {
namespace {

FileDescriptor opened(const std::filesystem::path& path) {
    // A name with a NUL inside would open the file named by its beginning.
    if (path.native().find('\0') != std::string::npos)
        throw FileError(EINVAL, path);
    int number = -1;
    do {
        // O_NONBLOCK: opening a pipe for reading must not wait for its writer.
        number = ::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY);
    } while (number < 0 && errno == EINTR);
    if (number < 0)
        throw FileError(errno, path);
    return FileDescriptor(number);
}

std::size_t sizeOfRegularFile(const FileDescriptor& file, const std::filesystem::path& path) {
    struct stat status {};
    if (::fstat(file.number(), &status) != 0)
        throw FileError(errno, path);
    if (S_ISDIR(status.st_mode))
        throw FileError(EISDIR, path);
    if (!S_ISREG(status.st_mode))
        throw FileError(EINVAL, path);
    return static_cast<std::size_t>(status.st_size);
}

}  // namespace

std::string readFile(const std::filesystem::path& path, std::size_t maximumBytes) {
    const FileDescriptor file = opened(path);
    const std::size_t size = sizeOfRegularFile(file, path);
    if (size > maximumBytes)
        throw FileError(EFBIG, path);

    std::string bytes;
    std::size_t filled = 0;
    // One byte of room beyond the expected end tells the end from a file that grew since.
    bytes.resize(size + 1);
    while (true) {
        const ssize_t count = ::read(file.number(), bytes.data() + filled, bytes.size() - filled);
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            throw FileError(errno, path);
        if (count == 0)
            break;
        filled += static_cast<std::size_t>(count);
        if (filled > maximumBytes)
            throw FileError(EFBIG, path);
        if (filled == bytes.size())
            bytes.resize(2 * filled + 4096);
    }
    bytes.resize(filled);
    return bytes;
}

}  // namespace foundation

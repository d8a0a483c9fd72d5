#include "platform/foundation/files/FileIdentity.hpp"

#include <sys/stat.h>

namespace foundation {

std::optional<FileIdentity> FileIdentity::of(const std::string& path) {
    struct stat status {};
    if (::stat(path.c_str(), &status) != 0)
        return std::nullopt;
    return FileIdentity{
        .device = status.st_dev,
        .node = status.st_ino,
        .size = status.st_size,
        .modifiedSeconds = status.st_mtim.tv_sec,
        .modifiedNanoseconds = status.st_mtim.tv_nsec,
    };
}

}  // namespace foundation

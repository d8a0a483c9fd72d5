#include "platform/foundation/files/FileCalls.hpp"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/random.h>
#include <unistd.h>

#include <cstdio>

namespace foundation {

const FileCalls& FileCalls::ofSystem() {
    static const FileCalls calls;
    return calls;
}

ssize_t FileCalls::getrandom(void* bytes, std::size_t size) const {
    return ::getrandom(bytes, size, 0);
}

int FileCalls::open(const char* path, int flags, mode_t mode) const {
    return ::open(path, flags, mode);
}

int FileCalls::lstat(const char* path, struct stat* status) const {
    return ::lstat(path, status);
}

int FileCalls::fstat(int file, struct stat* status) const {
    return ::fstat(file, status);
}

int FileCalls::fchmod(int file, mode_t mode) const {
    return ::fchmod(file, mode);
}

int FileCalls::flock(int file, int operation) const {
    return ::flock(file, operation);
}

ssize_t FileCalls::write(int file, const void* bytes, std::size_t size) const {
    return ::write(file, bytes, size);
}

int FileCalls::fsync(int file) const {
    return ::fsync(file);
}

int FileCalls::rename(const char* from, const char* to) const {
    return ::rename(from, to);
}

int FileCalls::renameat2(const char* from, const char* to, unsigned flags) const {
    return ::renameat2(AT_FDCWD, from, AT_FDCWD, to, flags);
}

int FileCalls::unlink(const char* path) const {
    return ::unlink(path);
}

int FileCalls::mkdir(const char* path, mode_t mode) const {
    return ::mkdir(path, mode);
}

DIR* FileCalls::opendir(const char* path) const {
    return ::opendir(path);
}

dirent* FileCalls::readdir(DIR* folder) const {
    return ::readdir(folder);
}

}  // namespace foundation

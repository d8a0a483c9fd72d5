#pragma once

#include <dirent.h>
#include <sys/stat.h>
#include <sys/types.h>

#include <cstddef>

namespace foundation {

/// The system's calls that replacing a file takes, each answering as the system does: below zero or
/// null with `errno` set. A test makes them fail one by one. Any thread.
class FileCalls {
  public:
    virtual ~FileCalls() = default;

    /// The calls of the running system.
    static const FileCalls& ofSystem();

    virtual ssize_t getrandom(void* bytes, std::size_t size) const;
    virtual int open(const char* path, int flags, mode_t mode) const;
    virtual int lstat(const char* path, struct stat* status) const;
    virtual int fstat(int file, struct stat* status) const;
    virtual int fchmod(int file, mode_t mode) const;
    virtual int flock(int file, int operation) const;
    virtual ssize_t write(int file, const void* bytes, std::size_t size) const;
    virtual int fsync(int file) const;
    virtual int rename(const char* from, const char* to) const;
    virtual int renameat2(const char* from, const char* to, unsigned flags) const;
    virtual int unlink(const char* path) const;
    virtual int mkdir(const char* path, mode_t mode) const;
    virtual DIR* opendir(const char* path) const;
    virtual dirent* readdir(DIR* folder) const;
};

}  // namespace foundation

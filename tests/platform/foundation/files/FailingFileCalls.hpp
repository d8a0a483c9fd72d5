#pragma once

#include "platform/foundation/files/FileCalls.hpp"

#include <algorithm>
#include <cerrno>
#include <map>
#include <string>
#include <string_view>

/// The system's calls, of which some fail: always, or only the n-th time that one is made. Counts
/// them. Writes no more bytes at once than it is told to, and does not wait for the disk. Only for
/// one thread.
class FailingFileCalls : public foundation::FileCalls {
  public:
    struct Failure {
        int error;
        int turn = 0;  ///< counted from 1; 0 is every time
    };

    std::map<std::string, Failure, std::less<>> failures;
    std::size_t bytesAtOnce = 1 << 30;

    int count(std::string_view call) const {
        const auto found = counts_.find(call);
        return found == counts_.end() ? 0 : found->second;
    }

    ssize_t getrandom(void* bytes, std::size_t size) const override {
        return fails("getrandom") ? -1 : FileCalls::getrandom(bytes, size);
    }
    int open(const char* path, int flags, mode_t mode) const override {
        return fails("open") ? -1 : FileCalls::open(path, flags, mode);
    }
    int lstat(const char* path, struct stat* status) const override {
        return fails("lstat") ? -1 : FileCalls::lstat(path, status);
    }
    int fstat(int file, struct stat* status) const override {
        return fails("fstat") ? -1 : FileCalls::fstat(file, status);
    }
    int fchmod(int file, mode_t mode) const override {
        return fails("fchmod") ? -1 : FileCalls::fchmod(file, mode);
    }
    int flock(int file, int operation) const override {
        return fails("flock") ? -1 : FileCalls::flock(file, operation);
    }
    ssize_t write(int file, const void* bytes, std::size_t size) const override {
        return fails("write") ? -1 : FileCalls::write(file, bytes, std::min(size, bytesAtOnce));
    }
    int fsync(int) const override { return fails("fsync") ? -1 : 0; }
    int rename(const char* from, const char* to) const override {
        return fails("rename") ? -1 : FileCalls::rename(from, to);
    }
    int renameat2(const char* from, const char* to, unsigned flags) const override {
        return fails("renameat2") ? -1 : FileCalls::renameat2(from, to, flags);
    }
    int unlink(const char* path) const override {
        return fails("unlink") ? -1 : FileCalls::unlink(path);
    }
    int mkdir(const char* path, mode_t mode) const override {
        return fails("mkdir") ? -1 : FileCalls::mkdir(path, mode);
    }
    DIR* opendir(const char* path) const override {
        return fails("opendir") ? nullptr : FileCalls::opendir(path);
    }
    dirent* readdir(DIR* folder) const override {
        return fails("readdir") ? nullptr : FileCalls::readdir(folder);
    }

  private:
    bool fails(std::string_view call) const {
        const int turn = ++counts_[std::string(call)];
        const auto found = failures.find(call);
        if (found == failures.end() || (found->second.turn != 0 && found->second.turn != turn))
            return false;
        errno = found->second.error;
        return true;
    }

    mutable std::map<std::string, int, std::less<>> counts_;
};

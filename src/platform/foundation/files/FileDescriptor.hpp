#pragma once

#include <utility>

namespace foundation {

/// An open file descriptor, closed with its owner. Below zero it holds none.
class FileDescriptor {
  public:
    FileDescriptor() = default;
    explicit FileDescriptor(int number) : number_(number) {}
    FileDescriptor(FileDescriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
    FileDescriptor& operator=(FileDescriptor&& other) noexcept {
        std::swap(number_, other.number_);
        return *this;
    }
    ~FileDescriptor();

    int number() const { return number_; }
    /// Leaves the descriptor to the caller, who closes it.
    int release() { return std::exchange(number_, -1); }
    explicit operator bool() const { return number_ >= 0; }

  private:
    int number_ = -1;
};

}  // namespace foundation

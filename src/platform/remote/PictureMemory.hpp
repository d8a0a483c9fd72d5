#pragma once

#include "platform/foundation/files/FileDescriptor.hpp"

#include <cstddef>
#include <cstdint>
#include <span>

namespace remote {

/// Memory for a picture that two processes see at the same address of their own: one draws into it,
/// the other looks. It cannot be made smaller, so that looking never faults. Starts transparent.
class PictureMemory {
  public:
    /// Makes memory for `count` pixels, which is one at least. Throws std::system_error.
    static PictureMemory create(std::size_t count);

    /// The memory that another process made. Throws std::system_error where the descriptor is none
    /// of such memory.
    static PictureMemory map(foundation::FileDescriptor descriptor);

    PictureMemory(PictureMemory&& other) noexcept;
    PictureMemory& operator=(PictureMemory&& other) noexcept;
    ~PictureMemory();

    std::span<std::uint32_t> pixels() const { return pixels_; }
    const foundation::FileDescriptor& descriptor() const { return descriptor_; }

  private:
    explicit PictureMemory(foundation::FileDescriptor descriptor);

    foundation::FileDescriptor descriptor_;
    std::span<std::uint32_t> pixels_;
};

}  // namespace remote

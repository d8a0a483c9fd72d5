#include "platform/remote/PictureMemory.hpp"

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <system_error>
#include <utility>

namespace remote {

namespace {

[[noreturn]] void fail(int error) {
    throw std::system_error(error, std::generic_category(), "memory of a picture");
}

}  // namespace

PictureMemory PictureMemory::create(std::size_t count) {
    foundation::FileDescriptor descriptor(
        ::memfd_create("nurva-picture", MFD_CLOEXEC | MFD_ALLOW_SEALING));
    const std::size_t bytes = count * sizeof(std::uint32_t);
    if (!descriptor || ::ftruncate(descriptor.number(), static_cast<off_t>(bytes)) != 0 ||
        ::fcntl(descriptor.number(), F_ADD_SEALS, F_SEAL_SHRINK | F_SEAL_GROW | F_SEAL_SEAL) != 0)
        fail(errno);
    return PictureMemory(std::move(descriptor));
}

PictureMemory PictureMemory::map(foundation::FileDescriptor descriptor) {
    const int seals = ::fcntl(descriptor.number(), F_GET_SEALS);
    if (seals < 0)
        fail(errno);
    if ((seals & F_SEAL_SHRINK) == 0)
        fail(EPERM);
    return PictureMemory(std::move(descriptor));
}

PictureMemory::PictureMemory(foundation::FileDescriptor descriptor)
    : descriptor_(std::move(descriptor)) {
    struct stat status {};
    if (::fstat(descriptor_.number(), &status) != 0)
        fail(errno);
    const auto bytes = static_cast<std::size_t>(status.st_size);
    void* const address =
        ::mmap(nullptr, bytes, PROT_READ | PROT_WRITE, MAP_SHARED, descriptor_.number(), 0);
    if (address == MAP_FAILED)
        fail(errno);
    pixels_ = {static_cast<std::uint32_t*>(address), bytes / sizeof(std::uint32_t)};
}

PictureMemory::PictureMemory(PictureMemory&& other) noexcept
    : descriptor_(std::move(other.descriptor_)), pixels_(std::exchange(other.pixels_, {})) {}

PictureMemory& PictureMemory::operator=(PictureMemory&& other) noexcept {
    std::swap(descriptor_, other.descriptor_);
    std::swap(pixels_, other.pixels_);
    return *this;
}

PictureMemory::~PictureMemory() {
    if (!pixels_.empty())
        ::munmap(pixels_.data(), pixels_.size_bytes());
}

}  // namespace remote

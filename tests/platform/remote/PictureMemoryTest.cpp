#include "platform/remote/PictureMemory.hpp"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <system_error>
#include <utility>

namespace remote {
namespace {

foundation::FileDescriptor copyOf(const foundation::FileDescriptor& descriptor) {
    return foundation::FileDescriptor(::fcntl(descriptor.number(), F_DUPFD_CLOEXEC, 0));
}

int errorOfMapping(foundation::FileDescriptor descriptor) {
    try {
        PictureMemory::map(std::move(descriptor));
        return 0;
    } catch (const std::system_error& error) {
        return error.code().value();
    }
}

TEST(PictureMemory, ShowsToOneWhatTheOtherDrew) {
    const PictureMemory ours = PictureMemory::create(6);
    const PictureMemory theirs = PictureMemory::map(copyOf(ours.descriptor()));
    ASSERT_EQ(theirs.pixels().size(), 6u);
    EXPECT_TRUE(std::ranges::all_of(theirs.pixels(), [](auto pixel) { return pixel == 0; }));
    theirs.pixels()[5] = 0xFF112233;
    EXPECT_EQ(ours.pixels()[5], 0xFF112233u);
}

TEST(PictureMemory, CanNeitherShrinkNorGrowNorBeUnsealed) {
    const PictureMemory memory = PictureMemory::create(1024);
    const int descriptor = memory.descriptor().number();
    EXPECT_EQ(::ftruncate(descriptor, 0), -1);
    EXPECT_EQ(errno, EPERM);
    EXPECT_EQ(::ftruncate(descriptor, 1 << 20), -1);
    EXPECT_EQ(::fcntl(descriptor, F_ADD_SEALS, F_SEAL_WRITE), -1);
}

TEST(PictureMemory, IsNotTakenFromOneWhoCouldShrinkIt) {
    foundation::FileDescriptor unsealed(::memfd_create("test", MFD_CLOEXEC | MFD_ALLOW_SEALING));
    ASSERT_EQ(::ftruncate(unsealed.number(), 4096), 0);
    EXPECT_EQ(errorOfMapping(std::move(unsealed)), EPERM);
}

TEST(PictureMemory, IsNoFileAndNoSocket) {
    EXPECT_EQ(errorOfMapping(foundation::FileDescriptor(::open("/dev/null", O_RDWR))), EINVAL);
    EXPECT_EQ(errorOfMapping(foundation::FileDescriptor()), EBADF);
}

TEST(PictureMemory, OfNothingIsNone) {
    EXPECT_THROW(PictureMemory::create(0), std::system_error);
}

TEST(PictureMemory, MovesWithItsOwner) {
    PictureMemory first = PictureMemory::create(2);
    first.pixels()[1] = 7;
    PictureMemory second = std::move(first);
    EXPECT_TRUE(first.pixels().empty());
    EXPECT_EQ(second.pixels()[1], 7u);
}

}  // namespace
}  // namespace remote

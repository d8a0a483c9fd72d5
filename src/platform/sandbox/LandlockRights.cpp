#include "platform/sandbox/LandlockRights.hpp"

#include <linux/landlock.h>

#include <array>

namespace sandbox {
namespace {

// What the headers of older kernels lack.
constexpr std::uint64_t truncateFile = 1 << 14;
constexpr std::uint64_t controlDevice = 1 << 15;
constexpr std::uint64_t bindTCP = 1 << 0;
constexpr std::uint64_t connectTCP = 1 << 1;
constexpr std::uint64_t abstractSockets = 1 << 0;
constexpr std::uint64_t signals = 1 << 1;

constexpr std::uint64_t firstFileRights =
    LANDLOCK_ACCESS_FS_EXECUTE | LANDLOCK_ACCESS_FS_WRITE_FILE | LANDLOCK_ACCESS_FS_READ_FILE |
    LANDLOCK_ACCESS_FS_READ_DIR | LANDLOCK_ACCESS_FS_REMOVE_DIR | LANDLOCK_ACCESS_FS_REMOVE_FILE |
    LANDLOCK_ACCESS_FS_MAKE_CHAR | LANDLOCK_ACCESS_FS_MAKE_DIR | LANDLOCK_ACCESS_FS_MAKE_REG |
    LANDLOCK_ACCESS_FS_MAKE_SOCK | LANDLOCK_ACCESS_FS_MAKE_FIFO | LANDLOCK_ACCESS_FS_MAKE_BLOCK |
    LANDLOCK_ACCESS_FS_MAKE_SYM;

/// What each version added to the one before.
constexpr std::array<LandlockRights, newestLandlockABI> additions{{
    {.files = firstFileRights},
    {.files = LANDLOCK_ACCESS_FS_REFER},
    {.files = truncateFile},
    {.ports = bindTCP | connectTCP},
    {.files = controlDevice},
    {.scopes = abstractSockets | signals},
}};

}  // namespace

LandlockRights handledRights(int abi) {
    LandlockRights rights;
    for (int version = 1; version <= newestLandlockABI && version <= abi; ++version) {
        const LandlockRights& added = additions[static_cast<std::size_t>(version - 1)];
        rights.files |= added.files;
        rights.ports |= added.ports;
        rights.scopes |= added.scopes;
    }
    return rights;
}

const std::uint64_t readingRights = LANDLOCK_ACCESS_FS_READ_FILE | LANDLOCK_ACCESS_FS_READ_DIR;

// No links, sockets, pipes or devices: whoever else uses the folder is not to be led elsewhere.
const std::uint64_t writingRights = readingRights | LANDLOCK_ACCESS_FS_WRITE_FILE | truncateFile |
                                    LANDLOCK_ACCESS_FS_MAKE_REG | LANDLOCK_ACCESS_FS_MAKE_DIR |
                                    LANDLOCK_ACCESS_FS_REMOVE_FILE | LANDLOCK_ACCESS_FS_REMOVE_DIR |
                                    LANDLOCK_ACCESS_FS_REFER;

const std::uint64_t rightsOfFile = LANDLOCK_ACCESS_FS_EXECUTE | LANDLOCK_ACCESS_FS_WRITE_FILE |
                                   LANDLOCK_ACCESS_FS_READ_FILE | truncateFile | controlDevice;

}  // namespace sandbox

#pragma once

#include <cstddef>
#include <filesystem>
#include <limits>
#include <vector>

namespace sandbox {

/// What a confined process may still reach. A folder stands for itself and all that is below it, a
/// link for what it names; what is missing when the process is confined stays out of reach.
struct Permissions {
    static constexpr std::size_t unlimited = std::numeric_limits<std::size_t>::max();

    /// To be read and listed.
    std::vector<std::filesystem::path> readable;
    /// To be read and listed too; files and folders in it are made, replaced, renamed and removed.
    std::vector<std::filesystem::path> writable;
    /// Bytes of writable memory that it shares with nobody, the stacks of its threads included.
    /// The shadow memory of a sanitizer needs it unlimited.
    std::size_t memory = unlimited;
};

}  // namespace sandbox

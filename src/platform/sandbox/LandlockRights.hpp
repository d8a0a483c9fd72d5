#pragma once

#include <cstdint>

namespace sandbox {

/// Sets of Landlock's rights, laid out as the kernel takes them.
struct LandlockRights {
    std::uint64_t files = 0;
    std::uint64_t ports = 0;
    std::uint64_t scopes = 0;

    bool operator==(const LandlockRights&) const = default;
};

/// The last version that brought rights.
constexpr int newestLandlockABI = 6;

/// All rights that a version knows of, to be denied where no rule grants them.
LandlockRights handledRights(int abi);

/// Rights in a folder that may be read or written, of any version.
extern const std::uint64_t readingRights;
extern const std::uint64_t writingRights;

/// Those rights that a rule for a single file may grant.
extern const std::uint64_t rightsOfFile;

}  // namespace sandbox

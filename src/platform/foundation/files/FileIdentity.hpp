#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace foundation {

/// What tells one state of a file from another without reading it. It follows links.
struct FileIdentity {
    std::uint64_t device = 0;
    std::uint64_t node = 0;
    std::int64_t size = 0;
    std::int64_t modifiedSeconds = 0;
    std::int64_t modifiedNanoseconds = 0;

    /// Of the file at a path, or nothing when there is none to be seen. Any thread; never fails
    /// otherwise.
    static std::optional<FileIdentity> of(const std::string& path);

    friend bool operator==(const FileIdentity&, const FileIdentity&) = default;
};

}  // namespace foundation

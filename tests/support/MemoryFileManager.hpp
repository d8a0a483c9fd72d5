#pragma once

#include "platform/foundation/files/FileError.hpp"
#include "platform/foundation/files/FileManager.hpp"

#include <atomic>
#include <cerrno>
#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace support {

/// Containers and files held in memory. Counts the reads and writes and notes which groups were
/// asked for. A path without a file throws ENOENT. Only for one thread, but for the counts.
class MemoryFileManager : public foundation::FileManager {
  public:
    std::map<std::string, std::filesystem::path, std::less<>> containers;
    mutable std::map<std::filesystem::path, std::string> files;
    /// What every write fails with.
    std::optional<int> writeError;

    std::optional<std::filesystem::path> containerURL(
        std::string_view groupIdentifier) const override {
        askedGroups_.emplace_back(groupIdentifier);
        const auto found = containers.find(groupIdentifier);
        if (found == containers.end())
            return std::nullopt;
        return found->second;
    }

    std::string contents(const std::filesystem::path& path) const override {
        ++reads_;
        const auto found = files.find(path);
        if (found == files.end())
            throw foundation::FileError(ENOENT, path);
        return found->second;
    }

    void writeAtomically(std::string_view bytes, const std::filesystem::path& path) const override {
        ++writes_;
        if (writeError)
            throw foundation::FileError(*writeError, path);
        files[path] = bytes;
    }

    std::size_t reads() const { return reads_; }
    std::size_t writes() const { return writes_; }
    const std::vector<std::string>& askedGroups() const { return askedGroups_; }

  private:
    mutable std::atomic<std::size_t> reads_ = 0;
    mutable std::atomic<std::size_t> writes_ = 0;
    mutable std::vector<std::string> askedGroups_;
};

}  // namespace support

#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace foundation {

/// The way to shared folders and to the files in them. Any thread.
class FileManager {
  public:
    virtual ~FileManager() = default;

    /// The folder shared by an application group, or nothing when the group has none. Never fails.
    virtual std::optional<std::filesystem::path> containerURL(
        std::string_view groupIdentifier) const = 0;

    /// The whole contents of a file. Throws FileError.
    virtual std::string contents(const std::filesystem::path& path) const = 0;

    /// Replaces a file, or makes one: whoever reads it reads the old one or the new one, whole.
    /// Throws FileError.
    virtual void writeAtomically(std::string_view bytes,
                                 const std::filesystem::path& path) const = 0;
};

}  // namespace foundation

#pragma once

#include "platform/foundation/EnvironmentVariables.hpp"
#include "platform/foundation/files/FileManager.hpp"

#include <filesystem>

namespace foundation {

/// The real file system. A group's container is the folder named after it in the user's
/// `group-containers`; whoever installs or starts a host application creates it.
class DefaultFileManager : public FileManager {
  public:
    explicit DefaultFileManager(
        const EnvironmentVariables& variables = EnvironmentVariables::ofProcess());

    std::optional<std::filesystem::path> containerURL(
        std::string_view groupIdentifier) const override;
    std::string contents(const std::filesystem::path& path) const override;
    void writeAtomically(std::string_view bytes, const std::filesystem::path& path) const override;

    /// Whether a folder can be named after the group.
    static bool namesContainer(std::string_view groupIdentifier);

    /// Where the group's container is or would be; nothing for a user without a home, and for a
    /// group that names none.
    std::optional<std::filesystem::path> containerPlace(std::string_view groupIdentifier) const;

    /// The group's container, made for the user alone where there is none. Throws FileError.
    std::filesystem::path createContainer(std::string_view groupIdentifier) const;

  private:
    std::optional<std::filesystem::path> containers_;
};

}  // namespace foundation

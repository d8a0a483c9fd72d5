#pragma once

#include "platform/foundation/files/FileManager.hpp"

#include <string>

namespace cli {

/// A file manager for which every file of every group container is the one named on the command
/// line, or with "-" what stands on standard input, which is read once. Nothing can be written.
class GivenFile final : public foundation::FileManager {
  public:
    explicit GivenFile(std::string name);

    std::optional<std::filesystem::path> containerURL(std::string_view group) const override;
    std::string contents(const std::filesystem::path& path) const override;
    void writeAtomically(std::string_view bytes, const std::filesystem::path& path) const override;

  private:
    std::string name_;
    std::string input_;
};

}  // namespace cli

#pragma once

#include "platform/foundation/EnvironmentVariables.hpp"
#include "widgethost/Placement.hpp"

#include <filesystem>
#include <functional>
#include <optional>
#include <string>

namespace widgethost {

/// The file in which the placement outlives the process.
class PlacementFile {
  public:
    /// Told in the user's language of what went wrong with the file.
    using Report = std::function<void(const std::string&)>;

    PlacementFile(std::filesystem::path path, Report report);

    /// `placement.json` in the user's folder of settings; nothing for a user without a home.
    static std::optional<std::filesystem::path> path(
        const foundation::EnvironmentVariables& variables);

    /// What was remembered; nothing where that is nothing yet, or where it cannot be read: then the
    /// file is kept aside as `placement.json.bad`, with a number where an older one stands there.
    std::optional<Placement> load() const;

    /// Remembers a placement, on the disk when this returns. Never fails, but reports.
    void save(const Placement& placement) const;

  private:
    void keepAside(const std::string& reason) const;

    std::filesystem::path path_;
    Report report_;
};

}  // namespace widgethost

#pragma once

#include "platform/foundation/EnvironmentVariables.hpp"
#include "platform/foundation/localization/StringsTable.hpp"
#include "platform/foundation/plist/PropertyList.hpp"

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace foundation {

/// A folder of resources: an Info dictionary, localization folders, tables of texts. A value with
/// cheap copies, which share what has been read; nothing is read before it is asked for. Any
/// thread; never fails.
class Bundle {
  public:
    /// The bundle at a folder, its texts in that folder itself; nothing without such a folder.
    static std::optional<Bundle> open(const std::filesystem::path& folder);

    /// The bundle at a folder, its texts in the localization folder that suits `languages` best,
    /// else in that of the language it was written in. A folder that is not there is a bundle
    /// without anything.
    static Bundle localized(std::filesystem::path folder, std::vector<std::string> languages);

    /// This program's own: the folder named by NURVA_BUNDLE, else the one installed beside the
    /// program.
    static Bundle main(const EnvironmentVariables& variables = EnvironmentVariables::ofProcess());

    const std::filesystem::path& path() const;

    std::optional<PropertyList> objectForInfoDictionaryKey(std::string_view key) const;

    /// The resource `name`.`type` in the bundle's folder. A name that is empty or leaves the folder
    /// has none.
    std::optional<std::filesystem::path> pathForResource(std::string_view name,
                                                         std::string_view type) const;

    /// The bundle in this bundle's folder for a language, by the folder's exact name.
    std::optional<Bundle> localization(std::string_view language) const;

    /// The table `Localizable`, empty when there is none. Lives as long as a copy of this bundle.
    const StringsTable& localizedTable() const;

  private:
    struct Contents;
    explicit Bundle(std::shared_ptr<Contents> contents);
    std::optional<std::filesystem::path> resourcePath(std::string_view name,
                                                      std::string_view type) const;
    std::shared_ptr<const StringsTable> suitedTable() const;
    std::shared_ptr<Contents> contents_;
};

}  // namespace foundation

#include "platform/foundation/bundle/Bundle.hpp"

#include "platform/foundation/files/FileError.hpp"
#include "platform/foundation/files/ReadFile.hpp"
#include "platform/foundation/localization/Languages.hpp"
#include "platform/foundation/localization/StringsTables.hpp"

#include <algorithm>
#include <mutex>
#include <system_error>
#include <utility>

namespace foundation {
namespace {

std::optional<PropertyList> readInfo(const std::filesystem::path& folder) {
    try {
        return PropertyList::parse(readFile(folder / "Info.plist"));
    } catch (const FileError&) {
        return std::nullopt;
    }
}

/// Programs stand in `bin`, or in a folder of their own below `libexec`.
std::filesystem::path installedBundle() {
    std::error_code ignored;
    const auto program = std::filesystem::read_symlink("/proc/self/exe", ignored);
    auto prefix = program.parent_path().parent_path();
    if (prefix.filename() == "libexec")
        prefix = prefix.parent_path();
    return prefix / "share" / "nurva-widgets" / "NurvaWidgets.appex";
}

/// The names that a folder for a language may have, the closest first: "es_MX", "es-MX", "es".
std::vector<std::string> folderNames(const std::string& language) {
    std::string hyphenated = language;
    std::replace(hyphenated.begin(), hyphenated.end(), '_', '-');
    return {language, hyphenated, language.substr(0, language.find_first_of("_-"))};
}

}  // namespace

struct Bundle::Contents {
    std::filesystem::path folder;
    /// Nothing when the texts lie in the folder itself.
    std::optional<std::vector<std::string>> languages;

    std::once_flag infoRead;
    std::optional<PropertyList> info;
    std::once_flag tableRead;
    std::shared_ptr<const StringsTable> table;
};

Bundle::Bundle(std::shared_ptr<Contents> contents) : contents_(std::move(contents)) {}

std::optional<Bundle> Bundle::open(const std::filesystem::path& folder) {
    std::error_code ignored;
    if (!std::filesystem::is_directory(folder, ignored))
        return std::nullopt;
    auto contents = std::make_shared<Contents>();
    contents->folder = folder;
    return Bundle(std::move(contents));
}

Bundle Bundle::localized(std::filesystem::path folder, std::vector<std::string> languages) {
    auto contents = std::make_shared<Contents>();
    contents->folder = std::move(folder);
    contents->languages = std::move(languages);
    return Bundle(std::move(contents));
}

Bundle Bundle::main(const EnvironmentVariables& variables) {
    const auto named = variables.value("NURVA_BUNDLE");
    return localized(named ? std::filesystem::path(*named) : installedBundle(),
                     preferredLanguages(variables));
}

const std::filesystem::path& Bundle::path() const {
    return contents_->folder;
}

std::optional<PropertyList> Bundle::objectForInfoDictionaryKey(std::string_view key) const {
    Contents& contents = *contents_;
    std::call_once(contents.infoRead, [&] { contents.info = readInfo(contents.folder); });
    const auto* dictionary = contents.info ? contents.info->dictionary() : nullptr;
    if (!dictionary)
        return std::nullopt;
    const auto found = dictionary->find(key);
    return found == dictionary->end() ? std::nullopt : std::optional(found->second);
}

std::optional<std::filesystem::path> Bundle::pathForResource(std::string_view name,
                                                             std::string_view type) const {
    auto resource = resourcePath(name, type);
    std::error_code ignored;
    if (resource && !std::filesystem::exists(*resource, ignored))
        return std::nullopt;
    return resource;
}

std::optional<Bundle> Bundle::localization(std::string_view language) const {
    const auto folder = resourcePath(language, "lproj");
    if (!folder)
        return std::nullopt;
    // Where there is a table there is a folder.
    auto table = localizableTable(*folder);
    if (!table)
        return open(*folder);
    auto contents = std::make_shared<Contents>();
    contents->folder = *folder;
    std::call_once(contents->tableRead, [&] { contents->table = std::move(table); });
    return Bundle(std::move(contents));
}

/// Where a resource would be, there or not.
std::optional<std::filesystem::path> Bundle::resourcePath(std::string_view name,
                                                          std::string_view type) const {
    std::string file(name);
    if (!type.empty())
        file.append(".").append(type);
    const auto leavesFolder = std::string_view("/\0", 2);
    if (name.empty() || file == "." || file == ".." ||
        file.find_first_of(leavesFolder) != std::string::npos)
        return std::nullopt;
    return contents_->folder / file;
}

std::shared_ptr<const StringsTable> Bundle::suitedTable() const {
    if (!contents_->languages)
        return localizableTable(contents_->folder);
    std::vector<std::string> names;
    for (const std::string& language : *contents_->languages) {
        for (std::string& name : folderNames(language))
            names.push_back(std::move(name));
    }
    const auto region = objectForInfoDictionaryKey("CFBundleDevelopmentRegion");
    const std::string* code = region ? region->string() : nullptr;
    names.push_back(code ? *code : "es");
    for (const std::string& name : names) {
        const auto folder = pathForResource(name, "lproj");
        if (auto table = folder ? localizableTable(*folder) : nullptr)
            return table;
    }
    return nullptr;
}

const StringsTable& Bundle::localizedTable() const {
    static const StringsTable empty;
    Contents& contents = *contents_;
    std::call_once(contents.tableRead, [&] { contents.table = suitedTable(); });
    return contents.table ? *contents.table : empty;
}

}  // namespace foundation

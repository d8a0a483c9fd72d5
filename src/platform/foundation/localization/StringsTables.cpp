#include "platform/foundation/localization/StringsTables.hpp"

#include "platform/foundation/files/FileError.hpp"
#include "platform/foundation/files/FileIdentity.hpp"
#include "platform/foundation/files/ReadFile.hpp"

#include <algorithm>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace foundation {
namespace {

constexpr std::size_t keptTables = 8;

struct Key {
    std::optional<FileIdentity> strings;
    std::optional<FileIdentity> dictionary;
    std::string language;

    friend bool operator==(const Key&, const Key&) = default;
};

struct Kept {
    Key key;
    std::shared_ptr<const StringsTable> table;
};

class Cache {
  public:
    std::shared_ptr<const StringsTable> find(const Key& key) {
        const std::lock_guard lock(mutex_);
        const auto found = std::find_if(kept_.begin(), kept_.end(),
                                        [&](const Kept& kept) { return kept.key == key; });
        if (found == kept_.end())
            return nullptr;
        std::rotate(kept_.begin(), found, found + 1);
        return kept_.front().table;
    }

    void keep(Kept kept) {
        const std::lock_guard lock(mutex_);
        kept_.insert(kept_.begin(), std::move(kept));
        kept_.resize(std::min(kept_.size(), keptTables));
    }

  private:
    std::mutex mutex_;
    std::vector<Kept> kept_;
};

/// Nothing where the file cannot be read now.
std::optional<std::string> contents(const std::string& path,
                                    const std::optional<FileIdentity>& file) {
    if (!file)
        return "";
    try {
        return readFile(path);
    } catch (const FileError&) {
        return std::nullopt;
    }
}

/// "en-GB" of ".../en-GB.lproj"; nothing for a folder that is no localization.
std::string languageOf(std::string_view folder) {
    constexpr std::string_view type = ".lproj";
    const std::string_view name = folder.substr(folder.rfind('/') + 1);
    return std::string(name.ends_with(type) ? name.substr(0, name.size() - type.size()) : "");
}

}  // namespace

std::shared_ptr<const StringsTable> localizableTable(const std::filesystem::path& folder) {
    static Cache cache;
    // Put together as plain texts: this is done at every choice of a language.
    const std::string strings = folder.native() + "/Localizable.strings";
    const std::string dictionary = strings + "dict";
    const Key key{FileIdentity::of(strings), FileIdentity::of(dictionary),
                  languageOf(folder.native())};
    if (!key.strings && !key.dictionary)
        return nullptr;
    if (auto table = cache.find(key))
        return table;
    const auto texts = contents(strings, key.strings);
    const auto plurals = contents(dictionary, key.dictionary);
    auto table = std::make_shared<const StringsTable>(key.language, texts.value_or(""),
                                                      plurals.value_or(""));
    if (texts && plurals)
        cache.keep({key, table});
    return table;
}

}  // namespace foundation

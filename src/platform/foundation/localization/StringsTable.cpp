#include "platform/foundation/localization/StringsTable.hpp"

#include "platform/foundation/localization/IntegerSpecifier.hpp"
#include "platform/foundation/localization/StringsText.hpp"
#include "platform/foundation/plist/BinaryPropertyList.hpp"
#include "platform/foundation/plist/PropertyList.hpp"
#include "platform/foundation/text/TextEncoding.hpp"

#include <optional>
#include <utility>

namespace foundation {
namespace {

using Entries = std::map<std::string, LocalizedFormat, std::less<>>;

const std::string* stringFor(std::string_view key, const PropertyList::Dictionary& dictionary) {
    const auto found = dictionary.find(key);
    return found == dictionary.end() ? nullptr : found->second.string();
}

/// Text in the old form never begins with "<", so what does is a property list.
bool isPropertyList(std::string_view bytes, const std::optional<std::string>& text) {
    if (bytes.starts_with(binaryPropertyListMark))
        return true;
    const std::size_t first = text ? text->find_first_not_of(" \t\r\n") : std::string::npos;
    return first != std::string::npos && (*text)[first] == '<';
}

void addPlainEntries(Entries& entries, std::string_view bytes) {
    const auto text = utf8FromTextFile(bytes);
    if (isPropertyList(bytes, text)) {
        const auto list = PropertyList::parse(bytes);
        const auto* dictionary = list ? list->dictionary() : nullptr;
        if (!dictionary)
            return;
        for (const auto& [key, value] : *dictionary) {
            if (const std::string* format = value.string())
                entries.insert_or_assign(key, LocalizedFormat{.text = *format});
        }
    } else if (text) {
        for (auto& [key, format] :
             parseStringsText(*text).value_or(std::map<std::string, std::string>()))
            entries.insert_or_assign(key, LocalizedFormat{.text = std::move(format)});
    }
}

std::optional<LocalizedFormat::Wordings> pluralWordings(const PropertyList& value) {
    const auto* dictionary = value.dictionary();
    if (!dictionary)
        return std::nullopt;
    const std::string* rule = stringFor("NSStringFormatSpecTypeKey", *dictionary);
    const std::string* type = stringFor("NSStringFormatValueTypeKey", *dictionary);
    if (!rule || *rule != "NSStringPluralRuleType" || !type || type->empty() ||
        integerSpecifierLength(*type) != type->size())
        return std::nullopt;
    LocalizedFormat::Wordings wordings;
    for (const char* category : {"zero", "one", "two", "few", "many", "other"}) {
        if (const std::string* wording = stringFor(category, *dictionary))
            wordings.emplace(category, *wording);
    }
    return wordings;
}

void addPluralEntries(Entries& entries, std::string_view bytes) {
    const auto list = PropertyList::parse(bytes);
    const auto* dictionary = list ? list->dictionary() : nullptr;
    if (!dictionary)
        return;
    for (const auto& [key, value] : *dictionary) {
        const auto* entry = value.dictionary();
        const std::string* format =
            entry ? stringFor("NSStringLocalizedFormatKey", *entry) : nullptr;
        if (!format)
            continue;
        LocalizedFormat localized{.text = *format};
        for (const auto& [name, variable] : *entry) {
            if (auto wordings = pluralWordings(variable))
                localized.variables.emplace(name, std::move(*wordings));
        }
        entries.insert_or_assign(key, std::move(localized));
    }
}

}  // namespace

StringsTable::StringsTable(std::string language,
                           std::string_view strings,
                           std::string_view stringsDictionary)
    : language_(std::move(language)) {
    addPlainEntries(entries_, strings);
    addPluralEntries(entries_, stringsDictionary);
}

const LocalizedFormat* StringsTable::entry(std::string_view key) const {
    const auto found = entries_.find(key);
    return found == entries_.end() ? nullptr : &found->second;
}

std::vector<std::string> StringsTable::keys() const {
    std::vector<std::string> keys;
    for (const auto& [key, entry] : entries_)
        keys.push_back(key);
    return keys;
}

}  // namespace foundation

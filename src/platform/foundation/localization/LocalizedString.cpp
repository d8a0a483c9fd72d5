#include "platform/foundation/localization/LocalizedString.hpp"

#include "platform/foundation/localization/Format.hpp"

namespace foundation {

std::string localizedString(std::string_view key,
                            const Bundle& bundle,
                            const Locale& locale,
                            std::span<const FormatArgument> arguments) {
    const StringsTable& table = bundle.localizedTable();
    const LocalizedFormat* entry = table.entry(key);
    if (arguments.empty())
        return entry && entry->variables.empty() ? entry->text : std::string(key);
    if (entry) {
        if (auto text = expandedFormat(*entry, arguments, locale, table.language()))
            return *std::move(text);
    }
    if (auto text = expandedFormat(key, arguments, locale))
        return *std::move(text);
    return std::string(key);
}

}  // namespace foundation

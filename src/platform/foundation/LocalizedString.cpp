#include "platform/foundation/LocalizedString.hpp"

#include "platform/foundation/Format.hpp"

namespace foundation {

std::string localizedString(std::string_view key,
                            const Bundle& bundle,
                            const Locale& locale,
                            const std::vector<FormatArgument>& arguments) {
    const StringsTable& table = bundle.localizedTable();
    const LocalizedFormat* entry = table.entry(key);
    if (arguments.empty())
        return entry && entry->variables.empty() ? entry->text : std::string(key);
    if (entry) {
        if (auto text = expandedFormat(*entry, arguments, locale, table.language()))
            return *std::move(text);
    }
    const LocalizedFormat itself{.text = std::string(key)};
    return expandedFormat(itself, arguments, locale, table.language()).value_or(itself.text);
}

}  // namespace foundation

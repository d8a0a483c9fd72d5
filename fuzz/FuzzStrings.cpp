#include "platform/foundation/localization/StringsTable.hpp"
#include "platform/foundation/localization/StringsText.hpp"
#include "platform/foundation/plist/PropertyList.hpp"
#include "platform/foundation/text/TextEncoding.hpp"
#include "platform/foundation/text/UTF8.hpp"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

namespace {

void require(bool condition) {
    if (!condition)
        std::abort();
}

}  // namespace

/// Any bytes as each of a bundle's files. Whatever is read from valid text is valid text.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    if (const auto text = foundation::utf8FromTextFile(bytes)) {
        require(foundation::isUTF8(*text));
        if (const auto entries = foundation::parseStringsText(*text)) {
            for (const auto& [key, value] : *entries)
                require(foundation::isUTF8(key) && foundation::isUTF8(value));
        }
    }
    const auto list = foundation::PropertyList::parse(bytes);
    const foundation::StringsTable plain("en", bytes, {});
    const foundation::StringsTable plural("en", {}, bytes);
    require(!list || list->dictionary() || plural.size() == 0);
    return 0;
}

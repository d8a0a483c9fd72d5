#include "platform/foundation/plist/PropertyList.hpp"

#include "platform/foundation/plist/BinaryPropertyList.hpp"
#include "platform/foundation/plist/PropertyListLimits.hpp"
#include "platform/foundation/plist/XMLPropertyList.hpp"
#include "platform/foundation/text/TextEncoding.hpp"

namespace foundation {

std::optional<PropertyList> PropertyList::parse(std::string_view bytes) {
    if (bytes.size() > PropertyListLimits::fileBytes)
        return std::nullopt;
    if (bytes.starts_with(binaryPropertyListMark))
        return parseBinaryPropertyList(bytes);
    const auto text = utf8FromTextFile(bytes);
    if (!text || text->empty())
        return std::nullopt;
    return parseXMLPropertyList(*text);
}

std::vector<std::string> PropertyList::strings(std::string_view key) const {
    std::vector<std::string> strings;
    const Dictionary* const members = dictionary();
    const auto found = members ? members->find(key) : Dictionary::const_iterator();
    const Array* const all = members && found != members->end() ? found->second.array() : nullptr;
    if (!all)
        return strings;
    for (const PropertyList& member : *all)
        if (const std::string* text = member.string())
            strings.push_back(*text);
    return strings;
}

}  // namespace foundation

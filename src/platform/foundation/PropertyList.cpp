#include "platform/foundation/PropertyList.hpp"

#include "platform/foundation/BinaryPropertyList.hpp"
#include "platform/foundation/PropertyListLimits.hpp"
#include "platform/foundation/TextEncoding.hpp"
#include "platform/foundation/XMLPropertyList.hpp"

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

}  // namespace foundation

#include "platform/foundation/plist/PropertyList.hpp"
#include "platform/foundation/plist/PropertyListLimits.hpp"
#include "platform/foundation/text/UTF8.hpp"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

namespace {

using foundation::PropertyList;

void require(bool holds) {
    if (!holds)
        std::abort();
}

void requireSound(const PropertyList& list, int depth) {
    require(depth <= foundation::PropertyListLimits::depth);
    if (const auto* text = list.string())
        require(foundation::isUTF8(*text));
    if (const auto* elements = list.array())
        for (const PropertyList& element : *elements)
            requireSound(element, depth + 1);
    if (const auto* entries = list.dictionary())
        for (const auto& [key, value] : *entries) {
            require(foundation::isUTF8(key));
            requireSound(value, depth + 1);
        }
}

}  // namespace

/// Reads any bytes as a property list, in XML or binary form. What is read is text, not too deep,
/// and the same when it is read again.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    const auto list = PropertyList::parse(bytes);
    if (!list)
        return 0;
    requireSound(*list, 0);
    const bool holdsNaN = list != list;
    require(holdsNaN || PropertyList::parse(bytes) == list);
    return 0;
}

#include "platform/foundation/plist/XMLPropertyList.hpp"

#include "platform/foundation/plist/PropertyListLimits.hpp"
#include "platform/foundation/text/UTF8.hpp"

#include <plist/plist.h>

#include <cstdlib>
#include <memory>
#include <utility>

namespace foundation {
namespace {

struct FreeMemory {
    void operator()(void* memory) const { std::free(memory); }
};
struct FreeNode {
    void operator()(plist_t node) const { plist_free(node); }
};
using Key = std::unique_ptr<char, FreeMemory>;
using Iterator = std::unique_ptr<void, FreeMemory>;

struct Malformed {};

std::size_t occurrences(std::string_view text, std::string_view word) {
    std::size_t count = 0;
    for (std::size_t at = 0; (at = text.find(word, at)) != std::string_view::npos;
         at += word.size())
        ++count;
    return count;
}

std::optional<PropertyList> converted(plist_t node, int depth);

PropertyList::Array convertedArray(plist_t node, int depth) {
    plist_array_iter raw = nullptr;
    plist_array_new_iter(node, &raw);
    const Iterator iterator(raw);
    PropertyList::Array elements;
    while (true) {
        plist_t element = nullptr;
        plist_array_next_item(node, iterator.get(), &element);
        if (!element)
            return elements;
        if (auto value = converted(element, depth + 1))
            elements.push_back(std::move(*value));
    }
}

PropertyList::Dictionary convertedDictionary(plist_t node, int depth) {
    plist_dict_iter raw = nullptr;
    plist_dict_new_iter(node, &raw);
    const Iterator iterator(raw);
    PropertyList::Dictionary entries;
    while (true) {
        char* name = nullptr;
        plist_t entry = nullptr;
        plist_dict_next_item(node, iterator.get(), &name, &entry);
        const Key key(name);
        if (!key || !entry)
            return entries;
        if (!isUTF8(key.get()))
            throw Malformed{};
        if (auto value = converted(entry, depth + 1))
            entries.insert_or_assign(key.get(), std::move(*value));
    }
}

std::string convertedString(plist_t node) {
    std::uint64_t length = 0;
    const char* text = plist_get_string_ptr(node, &length);
    const std::string_view view = text ? std::string_view(text, length) : std::string_view();
    // A numeric entity may name half a surrogate pair.
    if (!isUTF8(view))
        throw Malformed{};
    return std::string(view);
}

std::optional<PropertyList> converted(plist_t node, int depth) {
    if (depth > PropertyListLimits::depth)
        throw Malformed{};
    switch (plist_get_node_type(node)) {
        case PLIST_BOOLEAN:
            return PropertyList{plist_bool_val_is_true(node) == 1};
        case PLIST_UINT: {
            std::uint64_t number = 0;
            plist_get_uint_val(node, &number);
            return PropertyList{static_cast<std::int64_t>(number)};
        }
        case PLIST_REAL: {
            double number = 0;
            plist_get_real_val(node, &number);
            return PropertyList{number};
        }
        case PLIST_STRING:
            return PropertyList{convertedString(node)};
        case PLIST_ARRAY:
            return PropertyList{convertedArray(node, depth)};
        case PLIST_DICT:
            return PropertyList{convertedDictionary(node, depth)};
        default:
            return std::nullopt;
    }
}

}  // namespace

std::optional<PropertyList> parseXMLPropertyList(std::string_view text) {
    if (occurrences(text, "<array") + occurrences(text, "<dict") > PropertyListLimits::containers)
        return std::nullopt;
    plist_t root = nullptr;
    plist_from_xml(text.data(), static_cast<std::uint32_t>(text.size()), &root);
    const std::unique_ptr<void, FreeNode> owner(root);
    if (!root)
        return std::nullopt;
    try {
        return converted(root, 0);
    } catch (const Malformed&) {
        return std::nullopt;
    }
}

}  // namespace foundation

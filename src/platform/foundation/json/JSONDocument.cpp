#include "platform/foundation/json/JSONDocument.hpp"

#include "platform/foundation/json/DecodingError.hpp"
#include "platform/foundation/json/JSONReader.hpp"
#include "platform/foundation/json/JSONScanner.hpp"
#include "platform/foundation/json/JSONString.hpp"

#include <utility>

namespace foundation {

namespace {

JSONValue scanDocument(std::string_view text) {
    JSONScanner scanner(text);
    const JSONValue root = scanner.value();
    scanner.requireEnd();
    return root;
}

std::string keyOf(std::string_view text) {
    std::string key;
    if (!readWholeString(text, key)) {
        throw DecodingError::malformed();
    }
    return key;
}

}  // namespace

JSONDocument::JSONDocument(std::string_view text)
    : text_(withoutByteOrderMark(text)), root_(scanDocument(text_)) {}

void JSONDocument::requireWellFormed() const {
    JSONReader reader(text_);
    if (!reader.isAtEnd(reader.skipValue(reader.begin()))) {
        throw DecodingError::malformed();
    }
}

std::vector<JSONMember> members(const JSONValue& object) {
    std::vector<JSONMember> members;
    JSONScanner scanner(object.text);
    scanner.passItems('{', '}', [&] {
        std::string key = keyOf(scanner.string());
        scanner.require(':');
        members.push_back({std::move(key), scanner.value()});
    });
    return members;
}

void forEachElement(const JSONValue& array, const std::function<void(const JSONValue&)>& visit) {
    JSONScanner scanner(array.text);
    scanner.passItems('[', ']', [&] { visit(scanner.value()); });
}

}  // namespace foundation

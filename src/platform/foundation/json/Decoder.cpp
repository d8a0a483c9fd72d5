#include "platform/foundation/json/Decoder.hpp"

#include "platform/foundation/json/DecodingError.hpp"
#include "platform/foundation/json/JSONNumber.hpp"
#include "platform/foundation/json/JSONString.hpp"

#include <algorithm>
#include <utility>

namespace foundation {

namespace {

std::string_view described(JSONValue::Kind kind) {
    switch (kind) {
        case JSONValue::Kind::null:
            return "null";
        case JSONValue::Kind::boolean:
            return "bool";
        case JSONValue::Kind::number:
            return "number";
        case JSONValue::Kind::string:
            return "a string";
        case JSONValue::Kind::array:
            return "an array";
        case JSONValue::Kind::object:
            return "a dictionary";
    }
    return {};
}

bool isNumber(std::string_view text) {
    const char* const end = text.data() + text.size();
    return endOfNumber(text.data(), end) == end;
}

bool convertNumber(std::string_view text, double& number) {
    return convert(text, number);
}

template <class Integer>
bool convertNumber(std::string_view text, Integer& number) {
    return convertToInteger(text, number);
}

}  // namespace

Decoder::Decoder(JSONValue value, std::string codingPath)
    : value_(value), codingPath_(std::move(codingPath)) {}

Decoder Decoder::child(std::string_view step, JSONValue value) const {
    std::string path = codingPath_;
    if (!path.empty()) {
        path += '.';
    }
    return {value, path.append(step)};
}

void Decoder::require(JSONValue::Kind kind, std::string_view type) const {
    if (value_.kind != kind) {
        std::string text = "Expected to decode ";
        text.append(type).append(" but found ").append(described(value_.kind)).append(" instead.");
        throw DecodingError(DecodingError::Kind::typeMismatch, codingPath_, std::move(text));
    }
}

void Decoder::requireValue(std::string_view wanted) const {
    if (isNull()) {
        std::string text = "Cannot get ";
        text.append(wanted).append(" -- found null value instead");
        throw DecodingError(DecodingError::Kind::valueNotFound, codingPath_, std::move(text));
    }
}

template <class Number>
void Decoder::decodeNumber(Number& number, std::string_view type) const {
    require(JSONValue::Kind::number, type);
    if (!isNumber(value_.text)) {
        throw DecodingError::malformed();
    }
    if (!convertNumber(value_.text, number)) {
        // Counted as malformed text by the platform, so it has no path.
        std::string text = "Parsed JSON number <";
        text.append(value_.text).append("> at ").append(codingPath_);
        text.append(" does not fit in ").append(type).append(".");
        throw DecodingError(DecodingError::Kind::dataCorrupted, "", std::move(text));
    }
}

// A null is told apart from a wrong type for every type but bool.

void Decoder::decode(bool& value) const {
    require(JSONValue::Kind::boolean, "Bool");
    value = value_.text == "true";
}

void Decoder::decode(double& value) const {
    requireValue("value of type Double");
    decodeNumber(value, "Double");
}

void Decoder::decode(std::int64_t& value) const {
    requireValue("value of type Int");
    decodeNumber(value, "Int");
}

void Decoder::decode(std::uint32_t& value) const {
    requireValue("value of type UInt32");
    decodeNumber(value, "UInt32");
}

void Decoder::decode(Date& value) const {
    requireValue("value of type Date");
    decodeNumber(value.secondsSinceReferenceDate, "Double");
}

void Decoder::decode(std::string& value) const {
    requireValue("value of type String");
    require(JSONValue::Kind::string, "String");
    if (!readWholeString(value_.text.substr(1, value_.text.size() - 2), value)) {
        throw DecodingError::malformed();
    }
}

void Decoder::forEachElement(const std::function<void(const Decoder&)>& visit) const {
    requireValue("unkeyed decoding container");
    require(JSONValue::Kind::array, "Array<Any>");
    std::size_t index = 0;
    foundation::forEachElement(
        value_, [&](const JSONValue& element) { visit(child(std::to_string(index++), element)); });
}

KeyedDecodingContainer Decoder::container() const {
    requireValue("keyed decoding container");
    require(JSONValue::Kind::object, "Dictionary<String, Any>");
    return {*this, members(value_)};
}

KeyedDecodingContainer::KeyedDecodingContainer(Decoder object, std::vector<JSONMember> members)
    : object_(std::move(object)), members_(std::move(members)) {}

std::optional<Decoder> KeyedDecodingContainer::find(std::string_view key) const {
    const auto member = std::ranges::find(members_, key, &JSONMember::key);
    if (member == members_.end()) {
        return std::nullopt;
    }
    return object_.child(key, member->value);
}

bool KeyedDecodingContainer::contains(std::string_view key) const {
    return std::ranges::find(members_, key, &JSONMember::key) != members_.end();
}

Decoder KeyedDecodingContainer::require(std::string_view key) const {
    std::optional<Decoder> decoder = find(key);
    if (!decoder) {
        throw DecodingError::keyNotFound(key, object_.codingPath());
    }
    return *std::move(decoder);
}

std::size_t KeyedDecodingContainer::soleKey(std::span<const std::string_view> keys) const {
    const auto isHere = [this](std::string_view key) { return contains(key); };
    if (std::ranges::count_if(keys, isHere) != 1) {
        throw DecodingError(DecodingError::Kind::typeMismatch, object_.codingPath(),
                            "Invalid number of keys found, expected one.");
    }
    return static_cast<std::size_t>(std::ranges::find_if(keys, isHere) - keys.begin());
}

}  // namespace foundation

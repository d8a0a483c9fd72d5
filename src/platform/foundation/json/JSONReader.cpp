#include "platform/foundation/json/JSONReader.hpp"

#include "platform/foundation/json/JSONNumber.hpp"
#include "platform/foundation/json/JSONString.hpp"

namespace foundation {

using Position = JSONReader::Position;

std::string_view withoutByteOrderMark(std::string_view text) {
    constexpr std::string_view mark = "\xEF\xBB\xBF";
    return text.starts_with(mark) ? text.substr(mark.size()) : text;
}

Position JSONReader::readString(Position at, std::string_view& text, bool& hasEscapes) const {
    at = take(at, '"');
    if (at == nullptr) {
        return nullptr;
    }
    const JSONStringText string = readStringText(at, end_);
    if (string.end == nullptr || string.end == end_) {
        return nullptr;
    }
    text = std::string_view(at, static_cast<std::size_t>(string.end - at));
    hasEscapes = string.hasEscapes;
    return string.end + 1;
}

Position JSONReader::read(Position at, std::string& value) const {
    std::string_view text;
    bool hasEscapes = false;
    at = readString(at, text, hasEscapes);
    if (at != nullptr && !hasEscapes) {
        value.assign(text);
    } else if (at != nullptr) {
        value.clear();
        appendUnescaped(value, text);
    }
    return at;
}

Position JSONReader::readKey(Position at, std::string_view& key) {
    bool hasEscapes = false;
    at = readString(at, key, hasEscapes);
    if (at == nullptr) {
        return nullptr;
    }
    if (hasEscapes) {
        unescapedKey_.clear();
        appendUnescaped(unescapedKey_, key);
        key = unescapedKey_;
    }
    return take(at, ':');
}

Position JSONReader::readLongNumber(Position at, double& value) const {
    const Position end = endOfNumber(at, end_);
    if (end == nullptr ||
        !convert(std::string_view(at, static_cast<std::size_t>(end - at)), value)) {
        return nullptr;
    }
    return end;
}

template <class Integer>
Position JSONReader::readInteger(Position at, Integer& value) const {
    at = passBlanks(at);
    const Position end = endOfNumber(at, end_);
    if (end == nullptr ||
        !convertToInteger(std::string_view(at, static_cast<std::size_t>(end - at)), value)) {
        return nullptr;
    }
    return end;
}

template Position JSONReader::readInteger(Position, std::int64_t&) const;
template Position JSONReader::readInteger(Position, std::uint32_t&) const;

Position JSONReader::skipValue(Position at) {
    at = passBlanks(at);
    lastValue_ = at;
    if (at == end_) {
        return nullptr;
    }
    switch (*at) {
        case '{':
            return readObject(at, [this](Position member) {
                std::string_view key;
                const Position value = readKey(member, key);
                return value == nullptr ? nullptr : skipValue(value);
            });
        case '[':
            return readArray(at, [this](Position element) { return skipValue(element); });
        case '"': {
            std::string_view text;
            bool hasEscapes = false;
            return readString(at, text, hasEscapes);
        }
        case 't':
            return takeWord(at, "true");
        case 'f':
            return takeWord(at, "false");
        case 'n':
            return takeWord(at, "null");
        default:
            return endOfNumber(at, end_);
    }
}

}  // namespace foundation

#include "platform/foundation/json/JSONScanner.hpp"

#include "platform/foundation/json/DecodingError.hpp"
#include "platform/foundation/json/JSONReader.hpp"

#include <algorithm>

namespace foundation {

JSONValue JSONScanner::value() {
    passBlanks();
    const std::size_t begin = at_;
    const JSONValue::Kind kind = passValue();
    return {kind, text_.substr(begin, at_ - begin)};
}

std::string_view JSONScanner::string() {
    passBlanks();
    const std::size_t begin = at_ + 1;
    passString();
    return text_.substr(begin, at_ - 1 - begin);
}

JSONValue::Kind JSONScanner::passValue() {
    switch (next()) {
        case '{':
            passItems('{', '}', [this] {
                passBlanks();
                passString();
                require(':');
                value();
            });
            return JSONValue::Kind::object;
        case '[':
            passItems('[', ']', [this] { value(); });
            return JSONValue::Kind::array;
        case '"':
            passString();
            return JSONValue::Kind::string;
        case 't':
            return passWord("true", JSONValue::Kind::boolean);
        case 'f':
            return passWord("false", JSONValue::Kind::boolean);
        case 'n':
            return passWord("null", JSONValue::Kind::null);
        default:
            return passNumber();
    }
}

void JSONScanner::passString() {
    require('"');
    while (next() != '"') {
        at_ += next() == '\\' ? 2 : 1;
    }
    ++at_;
}

JSONValue::Kind JSONScanner::passWord(std::string_view word, JSONValue::Kind kind) {
    if (!text_.substr(at_).starts_with(word)) {
        throw DecodingError::malformed();
    }
    at_ += word.size();
    return kind;
}

JSONValue::Kind JSONScanner::passNumber() {
    if (std::string_view("-0123456789").find(next()) == std::string_view::npos) {
        throw DecodingError::malformed();
    }
    passAll("-+.0123456789Ee");
    return JSONValue::Kind::number;
}

void JSONScanner::enter() {
    if (++depth_ > deepestJSONNesting) {
        throw DecodingError::malformed();
    }
}

char JSONScanner::next() const {
    if (at_ >= text_.size()) {
        throw DecodingError::malformed();
    }
    return text_[at_];
}

bool JSONScanner::take(char character) {
    passBlanks();
    if (at_ >= text_.size() || text_[at_] != character) {
        return false;
    }
    ++at_;
    return true;
}

void JSONScanner::require(char character) {
    if (!take(character)) {
        throw DecodingError::malformed();
    }
}

void JSONScanner::requireEnd() {
    passBlanks();
    if (at_ < text_.size()) {
        throw DecodingError::malformed();
    }
}

void JSONScanner::passBlanks() {
    passAll(" \n\r\t");
}

void JSONScanner::passAll(std::string_view characters) {
    at_ = std::min(text_.find_first_not_of(characters, at_), text_.size());
}

}  // namespace foundation

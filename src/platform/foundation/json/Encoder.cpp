#include "platform/foundation/json/Encoder.hpp"

#include "platform/foundation/json/EncodingError.hpp"
#include "platform/foundation/text/UTF8.hpp"

#include <array>
#include <charconv>
#include <cmath>

namespace foundation {

namespace {

/// From here on not every whole number is a double; the digits would promise too much.
constexpr double largestWithoutExponent = 9007199254740992;
constexpr double smallestWithoutExponent = 1e-4;

/// The letter that stands for the character after a backslash; 0 where there is none.
char shortEscape(char character) {
    switch (character) {
        case '"':
        case '\\':
        case '/':
            return character;
        case '\b':
            return 'b';
        case '\f':
            return 'f';
        case '\n':
            return 'n';
        case '\r':
            return 'r';
        case '\t':
            return 't';
        default:
            return 0;
    }
}

void appendEscape(std::string& text, char character) {
    text += '\\';
    if (const char letter = shortEscape(character)) {
        text += letter;
        return;
    }
    constexpr std::string_view digits = "0123456789abcdef";
    const auto value = static_cast<unsigned char>(character);
    text += "u00";
    text += digits[value >> 4];
    text += digits[value & 15];
}

}  // namespace

void Encoder::encode(double value) {
    if (!std::isfinite(value)) {
        const std::string_view name = std::isnan(value) ? "nan" : value < 0 ? "-inf" : "inf";
        throw EncodingError(EncodingError::Kind::invalidValue, codingPath_,
                            "Unable to encode Double." + std::string(name) + " directly in JSON.");
    }
    const double size = std::fabs(value);
    const bool isPlain =
        value == 0 || (smallestWithoutExponent <= size && size <= largestWithoutExponent);
    std::array<char, 32> digits;
    const auto result =
        std::to_chars(digits.data(), digits.data() + digits.size(), value,
                      isPlain ? std::chars_format::fixed : std::chars_format::scientific);
    text_.append(digits.data(), result.ptr);
}

void Encoder::encodeString(std::string_view string) {
    text_ += '"';
    const char* const end = string.data() + string.size();
    for (const char* at = string.data(); at != end;) {
        const auto byte = static_cast<unsigned char>(*at);
        if (byte >= 0x80) {
            const char* const next = endOfSequence(at, end);
            if (next == nullptr) {
                throw EncodingError(EncodingError::Kind::invalidValue, codingPath_,
                                    "Unable to encode a String that is not UTF-8.");
            }
            text_.append(at, next);
            at = next;
            continue;
        }
        if (byte < 0x20 || shortEscape(*at) != 0) {
            appendEscape(text_, *at);
        } else {
            text_ += *at;
        }
        ++at;
    }
    text_ += '"';
}

void Encoder::begin(char opening) {
    text_ += opening;
    isFirstItem_ = true;
}

void Encoder::beginItem() {
    if (!isFirstItem_) {
        text_ += ',';
    }
    isFirstItem_ = false;
}

void Encoder::end(char closing) {
    text_ += closing;
    isFirstItem_ = false;
}

}  // namespace foundation

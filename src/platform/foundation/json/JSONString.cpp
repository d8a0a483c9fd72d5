#include "platform/foundation/json/JSONString.hpp"

#include "platform/foundation/text/UTF8.hpp"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <cstring>

namespace foundation {

namespace {

constexpr std::uint64_t everyByte = 0x0101010101010101;
constexpr std::uint64_t everyTopBit = 0x8080808080808080;

/// The top bit of each byte that cannot simply be passed over: quote, backslash, control character,
/// or part of a character beyond ASCII. Bits above the lowest one set may be wrong.
std::uint64_t remarkable(std::uint64_t bytes) {
    const std::uint64_t quote = bytes ^ (everyByte * '"');
    const std::uint64_t backslash = bytes ^ (everyByte * '\\');
    return ((quote - everyByte) | (backslash - everyByte) | (bytes - everyByte * 0x20) | bytes) &
           everyTopBit;
}

/// Goes on to the next byte of the string that needs a closer look, or to `end`.
const char* passPlain(const char* at, const char* end) {
    while (end - at >= 8) {
        std::uint64_t bytes;
        std::memcpy(&bytes, at, sizeof bytes);
        if constexpr (std::endian::native == std::endian::big) {
            bytes = __builtin_bswap64(bytes);
        }
        if (const std::uint64_t found = remarkable(bytes)) {
            return at + std::countr_zero(found) / 8;
        }
        at += 8;
    }
    while (at != end && *at != '"' && *at != '\\' && static_cast<unsigned char>(*at) >= 0x20 &&
           static_cast<unsigned char>(*at) < 0x80) {
        ++at;
    }
    return at;
}

bool isBetween(char byte, unsigned low, unsigned high) {
    const unsigned value = static_cast<unsigned char>(byte);
    return low <= value && value <= high;
}

/// The four hexadecimal digits at `at`, or -1.
int hexadecimal(const char* at, const char* end) {
    if (end - at < 4) {
        return -1;
    }
    int value = 0;
    for (int i = 0; i < 4; ++i) {
        const char digit = at[i];
        const int bits = isBetween(digit, '0', '9')   ? digit - '0'
                         : isBetween(digit, 'a', 'f') ? digit - 'a' + 10
                         : isBetween(digit, 'A', 'F') ? digit - 'A' + 10
                                                      : -1;
        if (bits < 0) {
            return -1;
        }
        value = value * 16 + bits;
    }
    return value;
}

bool isHighSurrogate(int unit) {
    return 0xD800 <= unit && unit <= 0xDBFF;
}

bool isLowSurrogate(int unit) {
    return 0xDC00 <= unit && unit <= 0xDFFF;
}

struct Escape {
    const char* end;  ///< null where the escape is malformed
    char32_t character;
};

/// Reads the escape whose backslash stands at `at`.
Escape readEscape(const char* at, const char* end) {
    if (end - at < 2) {
        return {nullptr, 0};
    }
    const char* const after = at + 2;
    switch (at[1]) {
        case '"':
        case '\\':
        case '/':
            return {after, static_cast<char32_t>(at[1])};
        case 'b':
            return {after, '\b'};
        case 'f':
            return {after, '\f'};
        case 'n':
            return {after, '\n'};
        case 'r':
            return {after, '\r'};
        case 't':
            return {after, '\t'};
        case 'u':
            break;
        default:
            return {nullptr, 0};
    }
    const int unit = hexadecimal(after, end);
    if (unit < 0 || isLowSurrogate(unit)) {
        return {nullptr, 0};
    }
    if (!isHighSurrogate(unit)) {
        return {after + 4, static_cast<char32_t>(unit)};
    }
    const char* const second = after + 4;
    if (end - second < 6 || second[0] != '\\' || second[1] != 'u') {
        return {nullptr, 0};
    }
    const int low = hexadecimal(second + 2, end);
    if (!isLowSurrogate(low)) {
        return {nullptr, 0};
    }
    return {second + 6, static_cast<char32_t>(0x10000 + ((unit - 0xD800) << 10) + (low - 0xDC00))};
}

}  // namespace

JSONStringText readStringText(const char* begin, const char* end) {
    bool hasEscapes = false;
    const char* at = begin;
    while ((at = passPlain(at, end)) != end && *at != '"') {
        if (*at == '\\') {
            hasEscapes = true;
            at = readEscape(at, end).end;
        } else {
            at = endOfSequence(at, end);
        }
        if (at == nullptr) {
            break;
        }
    }
    return {at, hasEscapes};
}

bool readWholeString(std::string_view text, std::string& string) {
    const char* const end = text.data() + text.size();
    if (readStringText(text.data(), end).end != end) {
        return false;
    }
    string.clear();
    appendUnescaped(string, text);
    return true;
}

void appendUnescaped(std::string& string, std::string_view text) {
    while (true) {
        const std::size_t plain = std::min(text.find('\\'), text.size());
        string += text.substr(0, plain);
        text.remove_prefix(plain);
        if (text.empty()) {
            return;
        }
        const Escape escape = readEscape(text.data(), text.data() + text.size());
        appendUTF8(string, escape.character);
        text.remove_prefix(static_cast<std::size_t>(escape.end - text.data()));
    }
}

}  // namespace foundation

#include "platform/foundation/TextEncoding.hpp"

#include <array>
#include <cstddef>

namespace foundation {
namespace {

/// A longer sequence than a character needs is malformed.
constexpr std::array<char32_t, 5> smallestOfLength = {0, 0, 0x80, 0x800, 0x10000};

bool isSurrogate(char32_t unit) {
    return unit >= 0xD800 && unit < 0xE000;
}

bool isCharacter(char32_t number) {
    return number <= 0x10FFFF && !isSurrogate(number);
}

/// Of a sequence that begins with this byte, or 0 when none does.
std::size_t sequenceLength(unsigned char first) {
    if (first >= 0xC0 && first < 0xE0)
        return 2;
    if (first >= 0xE0 && first < 0xF0)
        return 3;
    return first >= 0xF0 && first < 0xF8 ? 4 : 0;
}

char32_t unit(std::string_view bytes, std::size_t start, std::size_t size, ByteOrder order) {
    char32_t value = 0;
    for (std::size_t i = 0; i < size; ++i) {
        const std::size_t at = order == ByteOrder::bigEndian ? start + i : start + size - 1 - i;
        value = (value << 8) | static_cast<unsigned char>(bytes[at]);
    }
    return value;
}

std::optional<std::string> utf8FromUTF32(std::string_view bytes, ByteOrder order) {
    if (bytes.size() % 4 != 0)
        return std::nullopt;
    std::string text;
    for (std::size_t at = 0; at < bytes.size(); at += 4) {
        const char32_t character = unit(bytes, at, 4, order);
        if (!isCharacter(character))
            return std::nullopt;
        appendUTF8(text, character);
    }
    return text;
}

}  // namespace

bool isUTF8(std::string_view bytes) {
    for (std::size_t at = 0; at < bytes.size();) {
        const auto first = static_cast<unsigned char>(bytes[at]);
        if (first < 0x80) {
            ++at;
            continue;
        }
        const std::size_t length = sequenceLength(first);
        if (length == 0 || length > bytes.size() - at)
            return false;
        char32_t character = first & (0x7Fu >> length);
        for (std::size_t i = 1; i < length; ++i) {
            const auto tail = static_cast<unsigned char>(bytes[at + i]);
            if ((tail & 0xC0) != 0x80)
                return false;
            character = (character << 6) | (tail & 0x3Fu);
        }
        if (character < smallestOfLength[length] || !isCharacter(character))
            return false;
        at += length;
    }
    return true;
}

void appendUTF8(std::string& text, char32_t character) {
    if (!isCharacter(character))
        character = 0xFFFD;
    const auto tail = [&](int shift) {
        text += static_cast<char>(0x80 | ((character >> shift) & 0x3F));
    };
    if (character < 0x80) {
        text += static_cast<char>(character);
    } else if (character < 0x800) {
        text += static_cast<char>(0xC0 | (character >> 6));
        tail(0);
    } else if (character < 0x10000) {
        text += static_cast<char>(0xE0 | (character >> 12));
        tail(6);
        tail(0);
    } else {
        text += static_cast<char>(0xF0 | (character >> 18));
        tail(12);
        tail(6);
        tail(0);
    }
}

std::optional<std::string> utf8FromUTF16(std::string_view bytes, ByteOrder order) {
    if (bytes.size() % 2 != 0)
        return std::nullopt;
    std::string text;
    for (std::size_t at = 0; at < bytes.size(); at += 2) {
        char32_t character = unit(bytes, at, 2, order);
        if (character >= 0xD800 && character < 0xDC00 && at + 2 < bytes.size()) {
            const char32_t trail = unit(bytes, at + 2, 2, order);
            if (trail >= 0xDC00 && trail < 0xE000) {
                character = 0x10000 + ((character - 0xD800) << 10) + (trail - 0xDC00);
                at += 2;
            }
        }
        if (isSurrogate(character))
            return std::nullopt;
        appendUTF8(text, character);
    }
    return text;
}

std::optional<std::string> utf8FromTextFile(std::string_view bytes) {
    using namespace std::string_view_literals;
    // The mark of little-endian UTF-32 begins with that of UTF-16, so it is looked for first.
    if (bytes.starts_with("\xFF\xFE\0\0"sv))
        return utf8FromUTF32(bytes.substr(4), ByteOrder::littleEndian);
    if (bytes.starts_with("\0\0\xFE\xFF"sv))
        return utf8FromUTF32(bytes.substr(4), ByteOrder::bigEndian);
    if (bytes.starts_with("\xFF\xFE"sv))
        return utf8FromUTF16(bytes.substr(2), ByteOrder::littleEndian);
    if (bytes.starts_with("\xFE\xFF"sv))
        return utf8FromUTF16(bytes.substr(2), ByteOrder::bigEndian);
    if (bytes.starts_with("\xEF\xBB\xBF"sv))
        bytes.remove_prefix(3);
    if (!isUTF8(bytes))
        return std::nullopt;
    return std::string(bytes);
}

}  // namespace foundation

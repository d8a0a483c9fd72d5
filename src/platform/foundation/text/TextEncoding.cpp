#include "platform/foundation/text/TextEncoding.hpp"

#include "platform/foundation/text/UTF8.hpp"

#include <cstddef>

namespace foundation {
namespace {

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
        if (!isCharacter(character))
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

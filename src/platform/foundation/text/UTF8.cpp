#include "platform/foundation/text/UTF8.hpp"

namespace foundation {
namespace {

bool isBetween(char byte, unsigned low, unsigned high) {
    const unsigned value = static_cast<unsigned char>(byte);
    return low <= value && value <= high;
}

/// The end of the character that begins at `begin`; null where none does.
const char* endOfCharacter(const char* begin, const char* end) {
    return isBetween(*begin, 0, 0x7F) ? begin + 1 : endOfSequence(begin, end);
}

}  // namespace

bool isUTF8(std::string_view bytes) {
    const char* at = bytes.data();
    const char* const end = at + bytes.size();
    while (at != end) {
        at = endOfCharacter(at, end);
        if (at == nullptr)
            return false;
    }
    return true;
}

std::string repairedUTF8(std::string_view bytes) {
    std::string text;
    const char* const end = bytes.data() + bytes.size();
    for (const char* at = bytes.data(); at != end;) {
        if (const char* const next = endOfCharacter(at, end)) {
            text.append(at, next);
            at = next;
        } else {
            appendUTF8(text, 0xFFFD);
            ++at;
        }
    }
    return text;
}

const char* endOfSequence(const char* begin, const char* end) {
    const auto continues = [&](int i, unsigned low = 0x80, unsigned high = 0xBF) {
        return end - begin > i && isBetween(begin[i], low, high);
    };
    const unsigned lead = static_cast<unsigned char>(*begin);
    if (0xC2 <= lead && lead <= 0xDF)
        return continues(1) ? begin + 2 : nullptr;
    if (0xE0 <= lead && lead <= 0xEF) {
        // Neither longer than needed nor a surrogate.
        const unsigned low = lead == 0xE0 ? 0xA0 : 0x80;
        const unsigned high = lead == 0xED ? 0x9F : 0xBF;
        return continues(1, low, high) && continues(2) ? begin + 3 : nullptr;
    }
    if (0xF0 <= lead && lead <= 0xF4) {
        // Neither longer than needed nor beyond the last character.
        const unsigned low = lead == 0xF0 ? 0x90 : 0x80;
        const unsigned high = lead == 0xF4 ? 0x8F : 0xBF;
        return continues(1, low, high) && continues(2) && continues(3) ? begin + 4 : nullptr;
    }
    return nullptr;
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

}  // namespace foundation

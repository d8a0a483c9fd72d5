#pragma once

#include <string>
#include <string_view>

/// Characters as UTF-8. Any thread; never fail.
namespace foundation {

/// Whether a number is a character: within Unicode, and no half of a surrogate pair.
constexpr bool isCharacter(char32_t number) {
    return number < 0xD800 || (0xE000 <= number && number <= 0x10FFFF);
}

bool isUTF8(std::string_view bytes);

/// The end of the sequence of several bytes that begins at `begin`; null where none does. Requires
/// that `begin` is not the end.
const char* endOfSequence(const char* begin, const char* end);

/// The bytes as UTF-8: each that belongs to no character becomes U+FFFD.
std::string repairedUTF8(std::string_view bytes);

/// Adds a character to a text; a number that is no character becomes U+FFFD.
void appendUTF8(std::string& text, char32_t character);

}  // namespace foundation

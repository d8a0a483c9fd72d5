#include "platform/foundation/json/JSONReader.hpp"
#include "platform/foundation/json/JSONString.hpp"

#include <gtest/gtest.h>

#include <array>
#include <optional>
#include <string>

namespace {

/// What the text between the quotes stands for.
std::optional<std::string> string(const std::string& inside) {
    const std::string text = '"' + inside + '"';
    foundation::JSONReader reader(text);
    std::string value;
    return reader.isAtEnd(reader.read(reader.begin(), value)) ? std::optional(value) : std::nullopt;
}

std::string utf8(unsigned character) {
    if (character < 0x80) {
        return {static_cast<char>(character)};
    }
    std::string bytes;
    unsigned lead = 0x80;
    unsigned room = 0x40;
    do {
        bytes.insert(bytes.begin(), static_cast<char>(0x80 | (character & 0x3F)));
        character >>= 6;
        lead = (lead >> 1) | 0x80;
        room >>= 1;
    } while (character >= room);
    bytes.insert(bytes.begin(), static_cast<char>(lead | character));
    return bytes;
}

std::string escaped(unsigned unit) {
    std::array<char, 7> text;
    std::snprintf(text.data(), text.size(), "\\u%04X", unit);
    return text.data();
}

TEST(JSONString, TakesEveryCharacterAsItIs) {
    for (unsigned character = 0x20; character < 0x110000;
         character += character < 0x3000 ? 1 : 61) {
        const bool isSurrogate = 0xD800 <= character && character < 0xE000;
        const bool isSpecial = character == '"' || character == '\\';
        const std::string text = utf8(character);
        EXPECT_EQ(string("a" + text + "b") == "a" + text + "b", !isSurrogate && !isSpecial)
            << character;
    }
    EXPECT_EQ(string(utf8(0x10FFFF)), utf8(0x10FFFF));
    EXPECT_EQ(string(utf8(0x110000)), std::nullopt);
}

TEST(JSONString, TakesEveryEscapedUnit) {
    for (unsigned unit = 0; unit < 0x10000; ++unit) {
        if (0xD800 <= unit && unit < 0xE000) {
            EXPECT_EQ(string(escaped(unit)), std::nullopt) << unit;
            EXPECT_EQ(string(escaped(unit) + "x"), std::nullopt) << unit;
            EXPECT_EQ(string(escaped(unit) + escaped(0x41)), std::nullopt) << unit;
        } else {
            EXPECT_EQ(string(escaped(unit)), utf8(unit)) << unit;
        }
    }
}

TEST(JSONString, JoinsEscapedSurrogates) {
    EXPECT_EQ(string("\\uD83D\\uDE00!"), utf8(0x1F600) + "!");
    EXPECT_EQ(string("\\ud800\\udc00"), utf8(0x10000));
    EXPECT_EQ(string("\\uDBFF\\uDFFF"), utf8(0x10FFFF));
    EXPECT_EQ(string("\\uDE00\\uD83D"), std::nullopt);
    EXPECT_EQ(string("\\uD83D\\uD83D\\uDE00"), std::nullopt);
}

TEST(JSONString, KnowsTheShortEscapesAndNoOthers) {
    const std::string letters = "\"\\/bfnrt";
    const std::string meanings = "\"\\/\b\f\n\r\t";
    for (int byte = 0; byte < 256; ++byte) {
        const char letter = static_cast<char>(byte);
        const std::size_t at = letters.find(letter);
        EXPECT_EQ(
            string(std::string("\\") + letter),
            at == std::string::npos ? std::nullopt : std::optional(std::string(1, meanings[at])))
            << byte;
    }
}

TEST(JSONString, RefusesIncompleteEscapes) {
    for (const std::string text : {"\\", "\\u", "\\u0", "\\u00e", "\\u00g0", "\\u 0e9", "\\u+0e9",
                                   "\\uD83D\\u", "\\uD83D\\uDE0", "\\U00e9", "\\x41"}) {
        EXPECT_EQ(string(text), std::nullopt) << text;
    }
}

TEST(JSONString, RefusesBareControlCharactersWhereverTheyStand) {
    for (int byte = 0; byte < 0x20; ++byte) {
        for (std::size_t before = 0; before < 20; ++before) {
            const std::string text =
                std::string(before, 'x') + static_cast<char>(byte) + "0123456789";
            EXPECT_EQ(string(text), std::nullopt) << byte << " after " << before;
        }
    }
    EXPECT_EQ(string("\x7F"), "\x7F");
}

TEST(JSONString, RefusesMalformedUTF8WhereverItStands) {
    for (const std::string bytes :
         {"\x80", "\xBF", "\xC0\x80", "\xC1\xBF", "\xC3", "\xC3\x28", "\xE0\x80\x80",
          "\xE0\x9F\xBF", "\xE2\x82", "\xE2\x28\xA1", "\xED\xA0\x80", "\xED\xBF\xBF",
          "\xF0\x80\x80\x80", "\xF0\x8F\xBF\xBF", "\xF0\x9F\x98", "\xF4\x90\x80\x80",
          "\xF5\x80\x80\x80", "\xFE", "\xFF",
          // One below and one above what may follow, in every place.
          "\xC2\x7F", "\xC2\xC0", "\xE1\x7F\x80", "\xE1\xC0\x80", "\xE1\x80\x7F", "\xE1\x80\xC0",
          "\xF1\x7F\x80\x80", "\xF1\xC0\x80\x80", "\xF1\x80\x80\x7F", "\xF1\x80\x80\xC0"}) {
        for (std::size_t before = 0; before < 20; ++before) {
            EXPECT_EQ(string(std::string(before, 'x') + bytes), std::nullopt);
            EXPECT_EQ(string(std::string(before, 'x') + bytes + "0123456789"), std::nullopt);
        }
    }
}

TEST(JSONString, FindsItsEndAtEveryLength) {
    for (std::size_t length = 0; length < 40; ++length) {
        const std::string plain(length, 'x');
        EXPECT_EQ(string(plain), plain);
        EXPECT_EQ(string(plain + "\\n" + plain), plain + "\n" + plain);
        EXPECT_EQ(string(plain + "é" + plain), plain + "é" + plain);
        EXPECT_EQ(string(plain + "\"" + plain), std::nullopt);
    }
}

TEST(JSONString, MayHoldNUL) {
    EXPECT_EQ(string("a\\u0000b"), std::string("a\0b", 3));
}

}  // namespace

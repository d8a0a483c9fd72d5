#include "platform/foundation/TextEncoding.hpp"

#include <gtest/gtest.h>

namespace foundation {
namespace {

using namespace std::string_view_literals;

TEST(TextEncoding, EveryCharacterSurvivesItsUTF8) {
    for (char32_t character = 0; character <= 0x10FFFF; ++character) {
        if (character == 0xD800)
            character = 0xE000;
        std::string text;
        appendUTF8(text, character);
        ASSERT_TRUE(isUTF8(text)) << static_cast<unsigned>(character);
        std::string file("\0\0\xFE\xFF"sv);
        for (const int shift : {24, 16, 8, 0})
            file += static_cast<char>((character >> shift) & 0xFF);
        ASSERT_EQ(utf8FromTextFile(file), text);
    }
}

TEST(TextEncoding, WhatIsNoCharacterBecomesTheReplacement) {
    for (const char32_t number : {0xD800u, 0xDBFFu, 0xDC00u, 0xDFFFu, 0x110000u, 0xFFFFFFFFu}) {
        std::string text;
        appendUTF8(text, number);
        EXPECT_EQ(text, "\uFFFD");
    }
}

TEST(TextEncoding, RecognisesMalformedUTF8) {
    for (const std::string_view bytes :
         {"\x80"sv, "\xC3"sv, "\xC0\xAF"sv, "\xE0\x80\xAF"sv, "\xED\xA0\x80"sv,
          "\xF4\x90\x80\x80"sv, "\xF0\x8F\xBF\xBF"sv, "\xF8\x88\x80\x80\x80"sv, "\xFF"sv,
          "a\xC3z"sv, "\xE2\x82"sv})
        EXPECT_FALSE(isUTF8(bytes)) << testing::PrintToString(bytes);
}

TEST(TextEncoding, ByteOrderMarksChooseTheEncoding) {
    struct Case {
        std::string_view bytes;
        std::optional<std::string> text;
    };
    const Case cases[] = {
        {""sv, ""},
        {"a\xC3\xA9"sv, "aé"},
        {"\xEF\xBB\xBF"
         "a"sv,
         "a"},
        {"\xEF\xBB\xBF\xEF\xBB\xBF"sv, "\uFEFF"},
        {"\xFF\xFE"
         "a\0\xE9\0"sv,
         "aé"},
        {"\xFE\xFF\0a\0\xE9"sv, "aé"},
        {"\xFF\xFE\0\0a\0\0\0"sv, "a"},
        {"\0\0\xFE\xFF\0\0\0a"sv, "a"},
        {"\xFE\xFF\xD8\x3D\xDE\x00"sv, "😀"},
        {"\xFF\xFE\x3D\xD8\x00\xDE"sv, "😀"},
        {"\xFE\xFF\xD8\x3D"sv, std::nullopt},
        {"\xFE\xFF\xD8\x3D\0a"sv, std::nullopt},
        {"\xFE\xFF\xDE\x00\xD8\x3D"sv, std::nullopt},
        {"\xFE\xFF\0"sv, std::nullopt},
        {"\0\0\xFE\xFF\0\0\xD8\0"sv, std::nullopt},
        {"\0\0\xFE\xFF\0\x11\0\0"sv, std::nullopt},
        {"\0\0\xFE\xFF\0\0\0"sv, std::nullopt},
        {"a\xE9"sv, std::nullopt},
    };
    for (const Case& c : cases)
        EXPECT_EQ(utf8FromTextFile(c.bytes), c.text) << testing::PrintToString(c.bytes);
}

}  // namespace
}  // namespace foundation

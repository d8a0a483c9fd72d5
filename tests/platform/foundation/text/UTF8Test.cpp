#include "platform/foundation/text/UTF8.hpp"

#include <gtest/gtest.h>

namespace foundation {
namespace {

using namespace std::string_view_literals;

std::string utf8(char32_t number) {
    std::string text;
    appendUTF8(text, number);
    return text;
}

TEST(UTF8, EveryCharacterIsOneSequence) {
    for (char32_t character = 0; character <= 0x10FFFF; ++character) {
        if (character == 0xD800)
            character = 0xE000;
        ASSERT_TRUE(isCharacter(character));
        const std::string text = utf8(character);
        ASSERT_TRUE(isUTF8(text)) << static_cast<unsigned>(character);
        for (std::size_t cut = 1; cut < text.size(); ++cut)
            ASSERT_FALSE(isUTF8(text.substr(0, cut)) || isUTF8(text.substr(cut)));
        const char* const end = text.data() + text.size();
        ASSERT_EQ(endOfSequence(text.data(), end), character < 0x80 ? nullptr : end);
    }
}

TEST(UTF8, WhatIsNoCharacterBecomesTheReplacement) {
    for (const char32_t number : {0xD800u, 0xDBFFu, 0xDC00u, 0xDFFFu, 0x110000u, 0xFFFFFFFFu}) {
        EXPECT_FALSE(isCharacter(number));
        EXPECT_EQ(utf8(number), "\uFFFD");
    }
}

TEST(UTF8, MalformedSequencesAreNone) {
    for (const std::string_view bytes :
         {"\x80"sv, "\xC3"sv, "\xC0\xAF"sv, "\xE0\x80\xAF"sv, "\xED\xA0\x80"sv,
          "\xF4\x90\x80\x80"sv, "\xF0\x8F\xBF\xBF"sv, "\xF8\x88\x80\x80\x80"sv, "\xFF"sv,
          "a\xC3z"sv, "\xE2\x82"sv})
        EXPECT_FALSE(isUTF8(bytes)) << testing::PrintToString(bytes);
}

TEST(UTF8, EachByteOfNoCharacterIsRepaired) {
    EXPECT_EQ(repairedUTF8(""), "");
    EXPECT_EQ(repairedUTF8("a\0ñ€😀"sv), "a\0ñ€😀"sv);
    EXPECT_EQ(repairedUTF8("\xFF.json"), "\uFFFD.json");
    EXPECT_EQ(repairedUTF8("a\xE2\x82z\xC3"), "a\uFFFD\uFFFDz\uFFFD");
}

}  // namespace
}  // namespace foundation

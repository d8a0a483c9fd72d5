#include "platform/foundation/text/TextEncoding.hpp"
#include "platform/foundation/text/UTF8.hpp"

#include <gtest/gtest.h>

namespace foundation {
namespace {

using namespace std::string_view_literals;

TEST(TextEncoding, EveryCharacterIsReadFromUTF32) {
    for (char32_t character = 0; character <= 0x10FFFF; ++character) {
        if (character == 0xD800)
            character = 0xE000;
        std::string text;
        appendUTF8(text, character);
        std::string file("\0\0\xFE\xFF"sv);
        for (const int shift : {24, 16, 8, 0})
            file += static_cast<char>((character >> shift) & 0xFF);
        ASSERT_EQ(utf8FromTextFile(file), text);
    }
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

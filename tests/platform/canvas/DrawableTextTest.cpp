#include "platform/canvas/DrawableText.hpp"

#include <gtest/gtest.h>

#include <numeric>

namespace canvas {
namespace {

using namespace std::string_view_literals;

constexpr std::size_t plenty = 1000;

TEST(DrawableText, LeavesTextThatCanBeDrawnAsItIs) {
    for (const std::string_view text :
         {""sv, "Música"sv, "− y + → 45 %"sv, "שלום"sv, "\U0001F3B5"sv}) {
        const DrawableText drawable = drawableText(text, plenty);
        EXPECT_EQ(drawable.utf8, text);
        EXPECT_EQ(drawable.origins.size(), text.size() + 1);
        EXPECT_EQ(drawable.origins.back(), text.size());
    }
}

TEST(DrawableText, LeavesOutWhatNeverShows) {
    for (const std::string_view unseen :
         {"\0"sv, "\n"sv, "\t"sv, "\x1B"sv, "\x7F"sv, "\u0085"sv, "\u2028"sv, "\u2029"sv}) {
        const std::string text = std::string("a").append(unseen).append("b");
        const DrawableText drawable = drawableText(text, plenty);
        EXPECT_EQ(drawable.utf8, "ab");
        EXPECT_EQ(drawable.origins, (std::vector<std::size_t>{0, 1 + unseen.size(), text.size()}));
    }
}

TEST(DrawableText, ShowsAReplacementForEachByteThatIsNoUTF8) {
    struct Case {
        std::string_view text;
        std::string_view shown;
    };
    for (const auto& [text, shown] : {
             Case{"a\xFFz", "a\uFFFDz"},
             Case{"\xC3", "\uFFFD"},
             Case{"\xE2\x82", "\uFFFD\uFFFD"},
             Case{"\xC0\x80", "\uFFFD\uFFFD"},
             Case{"\xED\xA0\x80", "\uFFFD\uFFFD\uFFFD"},
             Case{"\xF4\x90\x80\x80", "\uFFFD\uFFFD\uFFFD\uFFFD"},
         })
        EXPECT_EQ(drawableText(text, plenty).utf8, shown);
}

TEST(DrawableText, NeverMakesAnythingButUTF8OfAnyTwoBytes) {
    for (int first = 0; first < 256; ++first) {
        for (int second = 0; second < 256; ++second) {
            const std::string text{static_cast<char>(first), static_cast<char>(second)};
            const DrawableText once = drawableText(text, plenty);
            ASSERT_EQ(drawableText(once.utf8, plenty).utf8, once.utf8) << first << ' ' << second;
            ASSERT_EQ(once.origins.size(), once.utf8.size() + 1);
        }
    }
}

TEST(DrawableText, CutsALongTextBetweenCharacters) {
    const std::string text = "aé€\U0001F3B5z";
    const std::string_view wholeCharacters[] = {
        "", "a", "a", "aé", "aé", "aé", "aé€", "aé€", "aé€", "aé€", "aé€\U0001F3B5", text};
    for (std::size_t longest = 0; longest <= text.size(); ++longest) {
        const DrawableText drawable = drawableText(text, longest);
        EXPECT_EQ(drawable.utf8, wholeCharacters[longest]) << longest;
        EXPECT_EQ(drawable.origins.back(), text.size());
    }
}

}  // namespace
}  // namespace canvas

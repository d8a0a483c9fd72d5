#include "platform/views/layout/Proposal.hpp"
#include "platform/views/text/TextLayout.hpp"
#include "support/FixedTextMeasurer.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

namespace views {
namespace {

using Lines = std::vector<std::string>;

// At this size every character is 5 points wide.
constexpr Font font{.size = 10};

TextLayout set(std::string_view text, double maxWidth, std::size_t maxLines = anyNumberOfLines) {
    return layOut(text, font, 0, maxWidth, maxLines, support::FixedTextMeasurer());
}

struct Case {
    std::string text;
    double maxWidth;
    std::size_t maxLines;
    Lines lines;
    double width;
};

void expectLines(const std::vector<Case>& cases) {
    for (const Case& c : cases) {
        SCOPED_TRACE(c.text + " in " + ::testing::PrintToString(c.maxWidth) + ", lines " +
                     ::testing::PrintToString(c.maxLines));
        const TextLayout layout = set(c.text, c.maxWidth, c.maxLines);
        EXPECT_EQ(layout.lines, c.lines);
        EXPECT_EQ(layout.width, c.width);
    }
}

constexpr std::size_t any = anyNumberOfLines;

TEST(TextLayout, KeepsOnOneLineWhatFits) {
    expectLines({
        {"hola mundo", infinity, any, {"hola mundo"}, 50},
        {"hola mundo", 50, any, {"hola mundo"}, 50},
        {"hola mundo", 50, 1, {"hola mundo"}, 50},
    });
}

TEST(TextLayout, KeepsTheSpaceAtTheEndOfALineThatNeedNotBreak) {
    expectLines({
        {"hola ", 50, any, {"hola "}, 25},
        {"hola ", 25, 1, {"hola "}, 25},
        {"hola \nti", 50, any, {"hola ", "ti"}, 25},
    });
}

TEST(TextLayout, BreaksBetweenWords) {
    expectLines({
        {"hola mundo", 49.5, any, {"hola", "mundo"}, 25},
        {"hola mundo", 25, any, {"hola", "mundo"}, 25},
        {"hola mundo", 25, 2, {"hola", "mundo"}, 25},
        {"uno dos tres", 35, any, {"uno dos", "tres"}, 35},
        {"uno   dos", 20, any, {"uno", "dos"}, 15},
        {"audio-jack", 45, any, {"audio-", "jack"}, 30},
    });
}

TEST(TextLayout, BreaksAWordOnlyWhereItAloneDoesNotFit) {
    expectLines({
        {"hola mundo", 24, any, {"hola", "mund", "o"}, 20},
        {"abcdefgh", 25, any, {"abcde", "fgh"}, 25},
        {"si abcdefgh", 25, any, {"si", "abcde", "fgh"}, 25},
        {"si abcde", 25, any, {"si", "abcde"}, 25},
    });
}

TEST(TextLayout, PutsAtLeastOneCharacterOnALine) {
    expectLines({{"abc", 2, any, {"a", "b", "c"}, 5}});
}

TEST(TextLayout, CutsTheLastLineWithAnEllipsis) {
    expectLines({
        {"hola mundo", 49, 1, {"hola mun…"}, 45},
        {"hola mundo", 45, 1, {"hola mun…"}, 45},
        {"hola mundo", 30, 1, {"hola…"}, 25},
        {"hola mundo", 25, 1, {"hola…"}, 25},
        {"uno dos tres", 25, 2, {"uno", "dos…"}, 20},
        {"uno dos tres", 20, 2, {"uno", "dos…"}, 20},
        {"uno dos tres cuatro", 40, 2, {"uno dos", "tres cu…"}, 40},
        {"abcdefgh", 5, 1, {"…"}, 5},
    });
}

TEST(TextLayout, ShowsNothingWhereNotEvenTheEllipsisFits) {
    expectLines({
        {"abcdefgh", 4.5, 1, {""}, 0},
        {"abcdefgh", 0, 1, {""}, 0},
        {"abcdefgh", 0, any, {""}, 0},
        {"a", 4.5, 1, {""}, 0},
    });
}

TEST(TextLayout, OfAnEmptyTextIsOneEmptyLine) {
    expectLines({{"", infinity, any, {""}, 0}, {"", 0, 1, {""}, 0}, {"", 100, 3, {""}, 0}});
}

TEST(TextLayout, HasAtLeastOneLine) {
    expectLines({{"hola mundo", 25, 0, {"hola…"}, 25}});
}

TEST(TextLayout, BreaksWhereTheTextSays) {
    expectLines({
        {"uno\ndos", infinity, any, {"uno", "dos"}, 15},
        {"uno\r\ndosdos", infinity, any, {"uno", "dosdos"}, 30},
        {"uno\n\ndos", infinity, any, {"uno", "", "dos"}, 15},
        {"uno dos\ntres", 20, any, {"uno", "dos", "tres"}, 20},
        {"uno\ndos", infinity, 1, {"uno…"}, 20},
        {"uno\ndos", 15, 1, {"un…"}, 15},
        {"uno\ndos\ntres", infinity, 2, {"uno", "dos…"}, 20},
        {"uno dos\ntres", 20, 2, {"uno", "dos…"}, 20},
    });
}

TEST(TextLayout, CountsTheTrackingAfterEveryGlyphTheLastIncluded) {
    const support::FixedTextMeasurer measurer;
    EXPECT_DOUBLE_EQ(layOut("NURVA", font, 0.9, infinity, 1, measurer).width, 5 * 5.9);
    EXPECT_EQ(layOut("NURVA", font, 0.9, 29.5, 1, measurer).lines, (Lines{"NURVA"}));
    EXPECT_EQ(layOut("NURVA", font, 0.9, 29.4, 1, measurer).lines, (Lines{"NUR…"}));
}

TEST(TextLayout, NeverPartsACharacterFromItsMarks) {
    expectLines({
        {"cafe\u0301s", 15, any, {"caf", "e\u0301s"}, 15},
        {"cafe\u0301s", 20, 1, {"caf…"}, 20},
        {"e\u0301\u0302\u0303e\u0301", 5, any, {"e\u0301\u0302\u0303", "e\u0301"}, 5},
    });
}

TEST(TextLayout, InAnyWidthKeepsEveryWordAndNoLineIsTooWide) {
    const std::string text = "Nurva está cerrado. Ábrelo y este widget se pone al día.";
    std::size_t linesBefore = anyNumberOfLines;
    for (double width = 5; width <= 400; width += 0.5) {
        const TextLayout layout = set(text, width);
        std::string joined;
        for (const std::string& line : layout.lines) {
            EXPECT_LE(support::FixedTextMeasurer().width(line, font, 0), width);
            joined += line;
        }
        std::string expected = text;
        std::erase(expected, ' ');
        std::erase(joined, ' ');
        EXPECT_EQ(joined, expected) << width;
        EXPECT_LE(layout.lines.size(), linesBefore) << width;
        linesBefore = layout.lines.size();
    }
    EXPECT_EQ(linesBefore, 1u);
}

TEST(TextLayout, InAnyWidthKeepsTheLineLimitAndShowsTheSameStart) {
    const std::string text = "mídela y sabrás qué corrige";
    for (std::size_t limit = 1; limit <= 3; ++limit)
        for (double width = 0; width <= 200; width += 0.5) {
            const Lines all = set(text, width).lines;
            const Lines shown = set(text, width, limit).lines;
            ASSERT_EQ(shown.size(), std::min(all.size(), limit)) << width;
            for (std::size_t i = 0; i + 1 < shown.size(); ++i)
                EXPECT_EQ(shown[i], all[i]) << width;
            const bool isCut = shown.back().ends_with("…");
            EXPECT_EQ(isCut, all.size() > limit && width >= 5) << width;
            EXPECT_LE(set(text, width, limit).width, std::max(width, 5.0));
        }
}

}  // namespace
}  // namespace views

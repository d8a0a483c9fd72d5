#include "platform/views/text/LineBreaks.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace views {
namespace {

using ::testing::ElementsAre;

TEST(LineBreakOpportunities, StandBehindSpacesAndHyphensAndAtTheEnd) {
    EXPECT_THAT(lineBreakOpportunities("uno dos"), ElementsAre(4, 7));
    EXPECT_THAT(lineBreakOpportunities("uno   dos"), ElementsAre(6, 9));
    EXPECT_THAT(lineBreakOpportunities("audio-jack"), ElementsAre(6, 10));
    EXPECT_THAT(lineBreakOpportunities("así"), ElementsAre(4));
    EXPECT_THAT(lineBreakOpportunities(""), ElementsAre(0));
}

TEST(LineBreakOpportunities, DoNotPartAWordFromItsPunctuation) {
    EXPECT_THAT(lineBreakOpportunities("¿uno? «dos»."), ElementsAre(7, 15));
    EXPECT_THAT(lineBreakOpportunities("35\u00A0dB"), ElementsAre(6));
}

TEST(LineBreakOpportunities, StandBetweenIdeographs) {
    EXPECT_THAT(lineBreakOpportunities("音量"), ElementsAre(3, 6));
}

TEST(Paragraphs, EndAtEveryKindOfHardBreak) {
    for (const std::string hardBreak :
         {"\n", "\r", "\r\n", "\v", "\f", "\u0085", "\u2028", "\u2029"})
        EXPECT_THAT(paragraphs("uno" + hardBreak + "dos"), ElementsAre("uno", "dos"));
}

TEST(Paragraphs, AreAtLeastOneAndMayBeEmpty) {
    EXPECT_THAT(paragraphs(""), ElementsAre(""));
    EXPECT_THAT(paragraphs("uno dos"), ElementsAre("uno dos"));
    EXPECT_THAT(paragraphs("\n"), ElementsAre("", ""));
    EXPECT_THAT(paragraphs("a\n\r\nb\n"), ElementsAre("a", "", "b", ""));
}

TEST(WithoutTrailingSpace, LeavesOutWhiteSpaceAtTheEndOnly) {
    EXPECT_EQ(withoutTrailingSpace(" uno dos \t\u2003 "), " uno dos");
    EXPECT_EQ(withoutTrailingSpace("uno"), "uno");
    EXPECT_EQ(withoutTrailingSpace("   "), "");
    EXPECT_EQ(withoutTrailingSpace(""), "");
    EXPECT_EQ(withoutTrailingSpace("así\xFF"), "así\xFF");
}

}  // namespace
}  // namespace views

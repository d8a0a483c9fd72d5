#include "platform/canvas/Fonts.hpp"
#include "platform/canvas/PangoTextMeasurer.hpp"

#include <gtest/gtest.h>

#include <limits>
#include <string>

namespace canvas {
namespace {

using namespace std::string_view_literals;
using views::Font;
using views::FontDesign;
using views::FontWeight;

constexpr std::string_view everyKind[] = {
    ""sv,
    "a"sv,
    "Volumen por app"sv,
    "− y + de 10 en 10 · o toca la barra"sv,
    "A->B fi ffl"sv,
    "e\u0301a"sv,
    "שלום abc…"sv,
    "日本語"sv,
    "\U0001F3B5 a"sv,
    "\U0001F468\u200D\U0001F469\u200D\U0001F467"sv,
    "a\nb\0c"sv,
    "\xFF\xFE"sv,
    "नमस्ते"sv,
    "\u202Eabc"sv,
    "\u200B\u200D"sv,
    "\n\n"sv,
};

class PangoTextMeasurerTest : public StandInFontTest {
  protected:
    const PangoTextMeasurer measurer{testFonts()};
};

TEST_F(PangoTextMeasurerTest, MakesEveryMonospacedCharacterExactlyAsWide) {
    for (double size = 8; size <= 30; size += 0.5) {
        for (const FontWeight weight :
             {FontWeight::regular, FontWeight::medium, FontWeight::semibold, FontWeight::bold}) {
            const Font font{size, weight, FontDesign::monospaced};
            EXPECT_NEAR(measurer.width("0", font, 0), 0.6181640625 * size, 0.001);
            EXPECT_NEAR(measurer.width("100%", font, 0), 4 * 0.6181640625 * size, 0.004);
            EXPECT_NEAR(measurer.width("->", font, 0), 2 * 0.6181640625 * size, 0.002);
        }
    }
}

TEST_F(PangoTextMeasurerTest, AddsTrackingAfterEveryGlyphTheLastIncluded) {
    for (const FontDesign design : {FontDesign::standard, FontDesign::monospaced}) {
        const Font font{12, FontWeight::regular, design};
        for (const double tracking : {-0.5, 0.9, 3.0}) {
            EXPECT_NEAR(measurer.width("abcd", font, tracking),
                        measurer.width("abcd", font, 0) + 4 * tracking, 1e-9);
            EXPECT_NEAR(measurer.width("e\u0301", font, tracking),
                        measurer.width("e\u0301", font, 0) + tracking, 1e-9);
        }
    }
}

TEST_F(PangoTextMeasurerTest, AddsTheFacesOwnTrackingAtEachSize) {
    // What is left of a width at a size once its em is taken off is the face's own tracking.
    const double em = (measurer.width("n", Font{12}, 0) - Font{12}.sizeTracking()) / 12;
    for (const double size : {9.0, 10.5, 17.0, 19.0, 26.0})
        EXPECT_NEAR(measurer.width("n", Font{size}, 0), em * size + Font{size}.sizeTracking(),
                    0.002);
}

TEST_F(PangoTextMeasurerTest, GrowsWithTheWeight) {
    double lighter = 0;
    for (const FontWeight weight :
         {FontWeight::regular, FontWeight::medium, FontWeight::semibold, FontWeight::bold}) {
        const double width = measurer.width("Volumen por app", Font{12, weight}, 0);
        EXPECT_GT(width, lighter);
        lighter = width;
    }
}

TEST_F(PangoTextMeasurerTest, ShowsNoLigaturesAndArrowsThatATextDoesNotHave) {
    const Font font{12};
    const auto sum = [&](std::initializer_list<const char*> parts) {
        double width = 0;
        for (const char* part : parts)
            width += measurer.width(part, font, 0);
        return width;
    };
    EXPECT_NEAR(measurer.width("->", font, 0), sum({"-", ">"}), 0.5);
    EXPECT_EQ(measurer.clusters("->", font, 0).size(), 2u);
    EXPECT_NE(measurer.width("->", font, 0), measurer.width("→", font, 0));
}

TEST_F(PangoTextMeasurerTest, GivesClustersThatCoverTheTextAndAddUpToItsWidth) {
    for (const std::string_view text : everyKind) {
        for (const double tracking : {0.0, 0.9}) {
            const Font font{12, FontWeight::semibold};
            const auto clusters = measurer.clusters(text, font, tracking);
            std::size_t end = 0;
            double sum = 0;
            for (const views::TextCluster& cluster : clusters) {
                EXPECT_GT(cluster.end, end) << text;
                end = cluster.end;
                sum += cluster.advance;
            }
            EXPECT_EQ(end, text.size()) << text;
            EXPECT_NEAR(sum, measurer.width(text, font, tracking), 1e-6) << text;
        }
    }
}

TEST_F(PangoTextMeasurerTest, KeepsAUserPerceivedCharacterTogether) {
    const Font font{12};
    EXPECT_EQ(measurer.clusters("e\u0301a", font, 0).size(), 2u);
    EXPECT_EQ(measurer.clusters("\U0001F1EA\U0001F1F8", font, 0).size(), 1u);
    EXPECT_EQ(measurer.clusters("\U0001F468\u200D\U0001F469\u200D\U0001F467", font, 0).size(), 1u);
    const auto accented = measurer.clusters("e\u0301a", font, 0);
    EXPECT_EQ(accented[0].end, 3u);
    EXPECT_GT(accented[0].advance, 0);
}

TEST_F(PangoTextMeasurerTest, GivesControlCharactersNoWidth) {
    const Font font{12};
    const double plain = measurer.width("ab", font, 0.9);
    EXPECT_EQ(measurer.width("a\nb"sv, font, 0.9), plain);
    EXPECT_EQ(measurer.width("a\0b"sv, font, 0.9), plain);
    EXPECT_EQ(measurer.width("\x1B\x7F\t"sv, font, 0.9), 0);
    EXPECT_EQ(measurer.width("", font, 0.9), 0);
    EXPECT_TRUE(measurer.clusters("", font, 0.9).empty());
}

TEST_F(PangoTextMeasurerTest, MeasuresAPieceOfATextAsWideAsItsClusters) {
    const Font font{12};
    const std::string text = "Reproductor de música muy largo";
    const auto clusters = measurer.clusters(text, font, 0);
    double sum = 0;
    for (const views::TextCluster& cluster : clusters) {
        sum += cluster.advance;
        // Only the kerning with what follows may differ.
        EXPECT_NEAR(measurer.width(text.substr(0, cluster.end), font, 0), sum, 0.8);
    }
}

TEST_F(PangoTextMeasurerTest, TakesAsLongForAMegabyteAsForAScreenful) {
    const std::string text(4 << 20, 'w');
    const Font font{12};
    EXPECT_GT(measurer.width(text, font, 0), 10000);
    EXPECT_EQ(measurer.width(text, font, 0),
              measurer.width(text.substr(0, FontLibrary::longestText), font, 0));
    EXPECT_EQ(measurer.clusters(text, font, 0).back().end, text.size());
}

TEST_F(PangoTextMeasurerTest, SurvivesSizesAndTrackingThatAreNoNumbers) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double infinity = std::numeric_limits<double>::infinity();
    for (const double size : {nan, infinity, -infinity, -1.0, 0.0, 1e300}) {
        EXPECT_EQ(measurer.width("abc", Font{size}, 0), 0) << size;
        EXPECT_EQ(measurer.clusters("abc", Font{size}, 0).back().end, 3u);
    }
    for (const double tracking : {nan, infinity, -infinity})
        EXPECT_EQ(measurer.width("abc", Font{12}, tracking), measurer.width("abc", Font{12}, 0));
}

}  // namespace
}  // namespace canvas

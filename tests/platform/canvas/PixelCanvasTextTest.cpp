#include "platform/canvas/Drawing.hpp"
#include "platform/canvas/PangoTextMeasurer.hpp"
#include "platform/canvas/PixelRect.hpp"
#include "support/HandMadeScenes.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>

namespace canvas {
namespace {

using namespace views;

class PixelCanvasText : public StandInFontTest {};

/// The rectangle of pixels that have anything.
PixelRect ink(const DrawnPicture& picture) {
    PixelRect area;
    for (int y = 0; y < picture.size.height; ++y) {
        for (int x = 0; x < picture.size.width; ++x) {
            if (picture.alpha(x, y) != 0)
                area = around(area, {x, y, 1, 1});
        }
    }
    return area;
}

TEST_F(PixelCanvasText, StandsOnTheNearestPixelBelowItsLine) {
    for (const double scale : everyScale) {
        for (double y = 10; y < 12; y += 0.17) {
            const Font font{12, FontWeight::semibold};
            const DrawnPicture picture =
                drawPixels(sceneOf(DrawText{{20, y, 60, 15}, "H", {"H"}, font, 0, white}), scale);
            EXPECT_EQ(ink(picture).bottom(), std::floor((y + font.baseline()) * scale + 0.5))
                << y << ' ' << scale;
        }
    }
}

TEST_F(PixelCanvasText, StacksItsLinesWithoutSpaceBetween) {
    const Font font{12};
    const DrawText one{{20, 5, 60, 15}, "H", {"H"}, font, 0, white};
    DrawText two = one;
    two.lines = {"", "H"};
    const PixelRect first = ink(drawPixels(sceneOf(one), 2));
    EXPECT_EQ(ink(drawPixels(sceneOf(two), 2)), first.movedBy(0, 30));
}

TEST_F(PixelCanvasText, KeepsItsGlyphsTogetherOnPixelsOfTheScreen) {
    // Moved by less than half a pixel, the picture is the same; by more, it moves as a whole.
    const auto at = [](double x) {
        return drawPixels(sceneOf(scenes::text(x, 10, "Abg", {12}, white)), 2);
    };
    EXPECT_EQ(at(20).argb, at(20.2).argb);
    EXPECT_EQ(ink(at(20.3)), ink(at(20)).movedBy(1, 0));
}

TEST_F(PixelCanvasText, FillsTheWidthThatWasMeasured) {
    const PangoTextMeasurer measurer(testFonts());
    for (const double scale : everyScale) {
        for (const double tracking : {0.0, 0.9}) {
            const Font font{12, FontWeight::semibold};
            const std::string line = "HHHHHHHH";
            const PixelRect drawn = ink(drawPixels(
                sceneOf(scenes::text(2, 20, line, font, white, tracking), {140, 60}), scale));
            const double width = measurer.width(line, font, tracking);
            // All but the last glyph's tracking and the room beside the stems at both ends.
            EXPECT_NEAR(drawn.width / scale, width - tracking, 2.5) << scale;
        }
    }
}

TEST_F(PixelCanvasText, StartsRightToLeftNamesAtTheLeftEdge) {
    const PixelRect hebrew = ink(drawPixels(sceneOf(scenes::text(20, 20, "שלום", {12}, white)), 2));
    EXPECT_GT(hebrew.width, 20);
    EXPECT_NEAR(hebrew.x, 40, 3);
}

TEST_F(PixelCanvasText, HonoursTheOpacityOfItsColor) {
    const auto strongest = [](const Command& command) {
        const DrawnPicture picture = drawPixels(sceneOf(command), 3);
        int alpha = 0;
        for (const std::uint32_t pixel : picture.argb)
            alpha = std::max(alpha, static_cast<int>(pixel >> 24));
        return alpha;
    };
    for (const char* line : {"H", "\U0001F50A"}) {
        EXPECT_EQ(strongest(scenes::text(20, 10, line, {20}, white)), 255) << line;
        EXPECT_NEAR(strongest(scenes::text(20, 10, line, {20}, white.opacity(0.5))), 128, 1)
            << line;
    }
}

TEST_F(PixelCanvasText, DrawsPictureCharactersInTheirOwnColors) {
    const DrawnPicture picture =
        drawPixels(sceneOf(scenes::text(20, 10, "\U0001F534", {20}, {0, 0, 1})), 2);
    int red = 0;
    for (const std::uint32_t pixel : picture.argb)
        red += (pixel >> 16 & 0xFF) > 150 && (pixel & 0xFF) < 100;
    EXPECT_GT(red, 100);
}

TEST_F(PixelCanvasText, DrawsEveryOneOfSeveralPictureCharacters) {
    constexpr const char* circle = "\U0001F534";
    const auto redPixels = [](const std::string& line) {
        return std::ranges::count_if(
            drawPixels(sceneOf(scenes::text(0, 10, line, {20}, {0, 0, 1})), 2).argb,
            [](std::uint32_t pixel) { return (pixel >> 16 & 0xFF) > 150 && (pixel & 0xFF) < 100; });
    };
    const auto one = redPixels(circle);
    EXPECT_NEAR(static_cast<double>(redPixels(std::string(circle) + circle + circle)),
                3.0 * static_cast<double>(one), 0.1 * static_cast<double>(one));
}

TEST_F(PixelCanvasText, ShowsCharactersOfNoFontBesideEachOther) {
    constexpr const char* nobodys = "\U0010FFFD";
    const auto right = [](const std::string& line) {
        return ink(drawPixels(sceneOf(scenes::text(0, 10, line, {12}, white)), 2)).right();
    };
    const double one = right(nobodys);
    const double two = right(std::string(nobodys) + nobodys);
    const double three = right(std::string(nobodys) + nobodys + nobodys);
    EXPECT_GE(two, 2 * one - 1) << "the second begins where the first ends";
    EXPECT_NEAR(three - two, two - one, 2);
}

TEST_F(PixelCanvasText, DrawsNothingForControlCharacters) {
    const std::string controls("\0\x01\n\t\x7F", 5);
    const DrawnPicture picture =
        drawPixels(sceneOf(DrawText{{20, 10, 60, 15}, controls, {controls}, {12}, 0, white}), 2);
    EXPECT_TRUE(ink(picture).empty());
    EXPECT_EQ(drawPixels(sceneOf(scenes::text(20, 10, "a\nb", {12}, white)), 2).argb,
              drawPixels(sceneOf(scenes::text(20, 10, "ab", {12}, white)), 2).argb);
}

}  // namespace
}  // namespace canvas

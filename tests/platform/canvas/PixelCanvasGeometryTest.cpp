#include "platform/canvas/Drawing.hpp"
#include "support/HandMadeScenes.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <utility>

namespace canvas {
namespace {

using namespace views;

/// The pixels of a row from the first to behind the last that has anything, {0, 0} without any.
std::pair<int, int> inkOfRow(const DrawnPicture& picture, int y) {
    std::pair<int, int> ink{0, 0};
    for (int x = 0; x < picture.size.width; ++x) {
        if (picture.alpha(x, y) == 0)
            continue;
        if (ink.second == 0)
            ink.first = x;
        ink.second = x + 1;
    }
    return ink;
}

TEST(PixelCanvasGeometry, PutsBothEdgesOfAShapeOnTheNearestPixels) {
    for (const double scale : everyScale) {
        for (double x = 20; x < 22; x += 0.13) {
            const double width = 30.21;
            const DrawnPicture picture =
                drawPixels(sceneOf(FillShape{Rectangle{}, {x, 10, width, 30}, white}), scale);
            const auto [first, behind] = inkOfRow(picture, static_cast<int>(20 * scale));
            ASSERT_EQ(first, std::floor(x * scale + 0.5)) << x << ' ' << scale;
            ASSERT_EQ(behind, std::floor((x + width) * scale + 0.5)) << x << ' ' << scale;
            ASSERT_EQ(picture.alpha(first, static_cast<int>(20 * scale)), 255);
        }
    }
}

TEST(PixelCanvasGeometry, KeepsABorderOfOnePointCrispAtOnePixelPerPoint) {
    for (double x = 20; x < 22; x += 0.13) {
        const Rect leaf{x, 10, 22, 22};
        const DrawnPicture picture = drawPixels(
            sceneOf(StrokeShape{RoundedRectangle{.cornerRadius = 6.5}, leaf.inset(0.5), 1, white}),
            1);
        const auto left = static_cast<int>(std::floor(x + 0.5));
        EXPECT_EQ(picture.alpha(left, 21), 255) << x;
        EXPECT_EQ(picture.alpha(left - 1, 21), 0) << x;
        EXPECT_EQ(picture.alpha(left + 1, 21), 0) << x;
    }
}

TEST(PixelCanvasGeometry, DoesNotSnapPaths) {
    const DrawnPicture picture =
        drawPixels(sceneOf(FillPath{{{20.25, 10}, {50, 10}, {50, 40}, {20.25, 40}}, white}), 1);
    EXPECT_NEAR(picture.alpha(20, 20), 191, 2);
}

TEST(PixelCanvasGeometry, FillsAPathByTheNonZeroRule) {
    // Twice around the same way: the even-odd rule would leave it empty.
    const std::vector<Point> square{{20, 10}, {50, 10}, {50, 40}, {20, 40}};
    std::vector<Point> twice = square;
    twice.insert(twice.end(), square.begin(), square.end());
    EXPECT_EQ(drawPixels(sceneOf(FillPath{twice, white}), 1).alpha(30, 20), 255);
}

TEST(PixelCanvasGeometry, DrawsSignsCrispAndSymmetrical) {
    for (const double scale : everyScale) {
        for (const char* name : {"plus", "minus"}) {
            const DrawnPicture picture = drawPixels(
                sceneOf(scenes::symbol(name, 50, 30, {9, FontWeight::bold}, white)), scale);
            int partly = 0;
            int fully = 0;
            for (int y = 0; y < picture.size.height; ++y) {
                for (int x = 0; x < picture.size.width; ++x) {
                    fully += picture.alpha(x, y) == 255;
                    partly += picture.alpha(x, y) > 0 && picture.alpha(x, y) < 255;
                }
            }
            // Only the round ends may be partly covered: at most the last row of pixels twice over.
            const double line = std::max(1.0, std::round(0.125 * 9 * scale));
            const int ends = std::string_view(name) == "plus" ? 4 : 2;
            EXPECT_LE(partly, ends * line * 2) << name << ' ' << scale;
            EXPECT_GT(fully, partly) << name << ' ' << scale;
        }
    }
}

TEST(PixelCanvasGeometry, KeepsASymbolWithinAPixelOfItsFrame) {
    for (const double scale : everyScale) {
        for (const char* name : {"plus", "minus", "speaker.wave.2.fill", "speaker.slash.fill"}) {
            const Command command = scenes::symbol(name, 50.3, 30.2, {10}, white);
            const Rect frame = std::get<DrawSymbol>(command).frame;
            const DrawnPicture picture = drawPixels(sceneOf(command), scale);
            for (int y = 0; y < picture.size.height; ++y) {
                for (int x = 0; x < picture.size.width; ++x) {
                    if (picture.alpha(x, y) == 0)
                        continue;
                    ASSERT_GE(x + 1, frame.x * scale - 1) << name << scale;
                    ASSERT_LE(x, frame.right() * scale + 1) << name << scale;
                    ASSERT_GE(y + 1, frame.y * scale - 1) << name << scale;
                    ASSERT_LE(y, frame.bottom() * scale + 1) << name << scale;
                }
            }
        }
    }
}

}  // namespace
}  // namespace canvas

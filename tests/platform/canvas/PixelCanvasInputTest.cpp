#include "platform/canvas/Drawing.hpp"
#include "platform/canvas/SVG.hpp"
#include "support/HandMadeScenes.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>

namespace canvas {
namespace {

using namespace views;

constexpr double nan = std::numeric_limits<double>::quiet_NaN();
constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double strange[] = {nan, infinity, -infinity, 1e300, -1e300, 1e9, -1e9, 1e-300, 0};

bool isEmpty(const DrawnPicture& picture) {
    for (const std::uint32_t pixel : picture.argb) {
        if (pixel != 0)
            return false;
    }
    return true;
}

/// Every kind of command around some frame.
std::vector<Command> everyCommand(const Rect& frame, double length) {
    const StrokeStyle style{length, LineCap::round, LineJoin::miter, length};
    const Font font{length, FontWeight::bold};
    return {FillShape{Rectangle{}, frame, white},
            FillShape{Circle{}, frame, white},
            FillShape{RoundedRectangle{.cornerRadius = length}, frame, white},
            StrokeShape{Capsule{}, frame, length, white},
            StrokeShape{RoundedRectangle{.cornerRadius = length}, frame, 1, white},
            FillPath{{{frame.x, frame.y}, {frame.width, frame.height}, {3, 50}}, white},
            StrokePath{{{frame.x, frame.y}, {frame.width, frame.height}, {3, 50}}, style, white},
            StrokePath{{{frame.x, frame.y}, {frame.width, frame.height}, {3, 50}}, {}, white},
            DrawText{frame, "abc", {"abc", "\U0001F50A"}, {12}, length, white},
            DrawText{frame, "abc", {"abc", "\U0001F50A"}, font, 0, white},
            DrawSymbol{"plus", frame, font, white},
            DrawSymbol{"speaker.slash.fill", frame, font, white},
            DrawSymbol{"speaker.wave.2.fill", frame, {12}, white}};
}

TEST(PixelCanvasInput, SurvivesNumbersThatNoLayoutGives) {
    PixelCanvas canvas(testFonts());
    for (const double value : strange) {
        for (int field = 0; field < 5; ++field) {
            Rect frame{10, 10, 40, 30};
            double length = 2;
            double* fields[] = {&frame.x, &frame.y, &frame.width, &frame.height, &length};
            *fields[field] = value;
            Scene scene{.size = {100, 60}, .drawing = everyCommand(frame, length)};
            scene.drawing.push_back(Group{0.5, scene.drawing});
            scene.drawing.push_back(FillShape{Circle{}, {80, 40, 10, 10}, white});
            const Pixels pixels = canvas.draw(scene, 1.5);
            // What comes after still stands in its place.
            EXPECT_EQ(pixels.argb[67 * 150 + 127], 0xFFFFFFFF) << value << ' ' << field;
            EXPECT_NO_THROW(writeSVG(scene, 1.5, testFonts())) << value << ' ' << field;
        }
    }
}

TEST(PixelCanvasInput, DrawsTheVisiblePartOfWhatIsHuge) {
    for (const double size : {1e4, 1e6, 1e9}) {
        const Scene scene = sceneOf(FillShape{
            RoundedRectangle{.cornerRadius = 20}, {-size, -size, 2 * size, 2 * size}, white});
        EXPECT_EQ(drawPixels(scene, 2).at(100, 60), 0xFFFFFFFF) << size;
    }
}

TEST(PixelCanvasInput, SkipsPointsOfAPathThatAreNoNumbers) {
    const std::vector<Point> points{{10, 10}, {nan, 20}, {50, infinity}, {50, 10}, {50, 40}};
    const std::vector<Point> finite{{10, 10}, {50, 10}, {50, 40}};
    const StrokeStyle style{2, LineCap::round, LineJoin::round, 10};
    EXPECT_EQ(drawPixels(sceneOf(StrokePath{points, style, white}), 2).argb,
              drawPixels(sceneOf(StrokePath{finite, style, white}), 2).argb);
    EXPECT_EQ(drawPixels(sceneOf(FillPath{points, white}), 2).argb,
              drawPixels(sceneOf(FillPath{finite, white}), 2).argb);
}

TEST(PixelCanvasInput, DrawsNothingOfPathsAndShapesWithoutExtent) {
    const StrokeStyle round{3, LineCap::round, LineJoin::round, 10};
    for (const Command& command : std::vector<Command>{
             StrokePath{{}, round, white},
             StrokePath{{{20, 20}}, round, white},
             StrokePath{{{20, 20}, {nan, 3}}, round, white},
             FillPath{{}, white},
             FillPath{{{20, 20}}, white},
             FillPath{{{20, 20}, {20, 50}}, white},
             FillShape{Capsule{}, {20, 20, 0, 5}, white},
             FillShape{Capsule{}, {20, 20, -5, 5}, white},
             StrokeShape{Capsule{}, {20, 20, 0, 5}, 1, white},
             StrokeShape{Capsule{}, {20, 20, 20, 5}, 0, white},
             StrokeShape{Capsule{}, {20, 20, 20, 5}, -1, white},
             FillShape{Capsule{}, {20, 20, 20, 5}, Color::clear()},
             DrawSymbol{"unknown", {20, 20, 20, 5}, {12}, white},
             DrawText{{20, 20, 20, 15}, "a", {}, {12}, 0, white},
             Group{1, {}},
         }) {
        EXPECT_TRUE(isEmpty(drawPixels(sceneOf(command), 2))) << command.index();
        EXPECT_TRUE(isEmpty(drawPlainly(sceneOf(command), 2))) << command.index();
    }
}

TEST(PixelCanvasInput, BringsColorsInsideTheirRange) {
    const Rect frame{20, 20, 20, 20};
    EXPECT_EQ(drawPixels(sceneOf(FillShape{Rectangle{}, frame, {7, -3, nan, 9}}), 1).at(30, 30),
              0xFFFF0000);
    EXPECT_TRUE(isEmpty(drawPixels(sceneOf(FillShape{Rectangle{}, frame, {1, 1, 1, nan}}), 1)));
}

TEST(PixelCanvasInput, DrawsACurveOfManyPoints) {
    StrokePath curve{{}, {2.2, LineCap::round, LineJoin::round, 10}, white};
    for (int i = 0; i < 20000; ++i)
        curve.points.push_back({i / 200.0, 30 + 20 * std::sin(i)});
    EXPECT_FALSE(isEmpty(drawPixels(sceneOf(curve), 2)));
}

TEST(PixelCanvasInput, DrawsALineOfAMegabyte) {
    const std::string line(1 << 20, 'w');
    const DrawnPicture picture = drawPixels(sceneOf(scenes::text(20, 20, line, {12}, white)), 2);
    EXPECT_FALSE(isEmpty(picture));
}

TEST(PixelCanvasInput, RefusesPicturesThatCannotBe) {
    PixelCanvas canvas(testFonts());
    for (const double value : {nan, infinity, -infinity, 0.0, -5.0, 1e9}) {
        EXPECT_THROW(canvas.draw({.size = {value, 10}}, 1), std::invalid_argument) << value;
        EXPECT_THROW(canvas.draw({.size = {10, value}}, 1), std::invalid_argument) << value;
        EXPECT_THROW(canvas.draw({.size = {10, 10}}, value), std::invalid_argument) << value;
    }
}

}  // namespace
}  // namespace canvas

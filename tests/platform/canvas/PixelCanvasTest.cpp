#include "platform/canvas/Drawing.hpp"
#include "platform/canvas/PixelCanvas.hpp"
#include "support/HandMadeScenes.hpp"

#include <gtest/gtest.h>

namespace canvas {
namespace {

using namespace views;

std::vector<Scene> manyScenes() {
    std::vector<Scene> scenes{scenes::volume(), scenes::volume(0.07), scenes::whatIsOn()};
    Scene blends{.size = {170.3, 121.7}, .background = scenes::background.opacity(0.6)};
    for (int i = 0; i < 12; ++i) {
        const Rect frame{i * 13.37, i * 9.11, 20 + i * 1.7, 31 - i * 2.1};
        const Color color{i / 12.0, 1 - i / 12.0, 0.5, 0.2 + i / 15.0};
        blends.drawing.push_back(
            FillShape{RoundedRectangle{.cornerRadius = i * 1.3}, frame, color});
        blends.drawing.push_back(StrokeShape{Circle{}, frame.inset(1.1), 2.2, color});
        blends.drawing.push_back(StrokeShape{Capsule{}, frame.inset(0.5), 1, color});
        blends.drawing.push_back(
            Group{0.5,
                  {FillShape{Rectangle{}, frame.movedBy(7, 5), color},
                   Group{0.3, {FillShape{Circle{}, frame.movedBy(9, 2), white}}},
                   StrokePath{{{frame.x, frame.y}, {90, 60}, {frame.right(), 3}},
                              {3, i % 2 ? LineCap::round : LineCap::butt,
                               i % 3 ? LineJoin::miter : LineJoin::round, 4},
                              color}}});
    }
    scenes.push_back(blends);
    Scene texts{.size = {300, 120}};
    double y = 0;
    for (const char* line :
         {"Wave AV Äg", "日本語 \U0001F50A x", "שלום abc…", "नमस्ते", "\xFF\x01z"}) {
        texts.drawing.push_back(scenes::text(5.3, y, line, {13, FontWeight::medium},
                                             scenes::primary.opacity(0.7), 0.4));
        y += 21.3;
    }
    scenes.push_back(texts);
    return scenes;
}

TEST(PixelCanvas, DrawsWhatThePlainPlayerDraws) {
    for (const Scene& scene : manyScenes()) {
        for (const double scale : everyScale) {
            const DrawnPicture pixels = drawPixels(scene, scale);
            const DrawnPicture plain = drawPlainly(scene, scale);
            const PictureDifference difference = comparePictures(pixels.argb, plain.argb);
            EXPECT_LE(difference.largest, 8) << scale << ' ' << difference;
            EXPECT_LE(difference.averageChange, 0.25) << scale << ' ' << difference;
        }
    }
}

TEST(PixelCanvas, DrawsTheSameAgainFromWhatItKept) {
    PixelCanvas canvas(testFonts());
    for (const Scene& scene : manyScenes()) {
        const Pixels first = canvas.draw(scene, 2);
        const std::vector<std::uint32_t> before(first.argb.begin(), first.argb.end());
        canvas.draw(scenes::volume(0.9), 2);
        const Pixels again = canvas.draw(scene, 2);
        EXPECT_EQ(comparePictures(before, again.argb).largest, 0);
    }
}

TEST(PixelCanvas, DrawsIntoTheCallersMemory) {
    const Scene scene = scenes::whatIsOn();
    PixelCanvas canvas(testFonts());
    std::vector<std::uint32_t> memory(pixelSize(scene.size, 1.5).count(), 0xDEADBEEF);
    canvas.draw(scene, 1.5, memory);
    EXPECT_EQ(memory, drawPixels(scene, 1.5).argb);
    std::vector<std::uint32_t> small(memory.size() - 1);
    EXPECT_THROW(canvas.draw(scene, 1.5, small), std::invalid_argument);
}

TEST(PixelCanvas, LeavesTheCornersOfTheCardTransparent) {
    Scene scene{.size = {170, 170}, .background = white};
    scene.drawing = {FillShape{Rectangle{}, {-50, -50, 300, 300}, scenes::amber},
                     Group{0.5, {FillShape{Rectangle{}, {0, 0, 170, 170}, white}}}};
    for (const double scale : everyScale) {
        const DrawnPicture picture = drawPixels(scene, scale);
        const int last = picture.size.width - 1;
        for (const auto& [x, y] : {std::pair{0, 0}, {last, 0}, {0, last}, {last, last}})
            EXPECT_EQ(picture.at(x, y), 0u);
        // The corner's curve stands 9 points from the card's corner on the diagonal.
        EXPECT_EQ(picture.alpha(static_cast<int>(5 * scale), static_cast<int>(5 * scale)), 0);
        EXPECT_EQ(picture.alpha(static_cast<int>(10 * scale), static_cast<int>(10 * scale)), 255);
        EXPECT_EQ(picture.alpha(last / 2, 0), 255);
        EXPECT_EQ(picture.alpha(0, last / 2), 255);
    }
}

TEST(PixelCanvas, CompositesAGroupAsOnePicture) {
    const Rect left{20, 20, 30, 20};
    const Rect right{40, 20, 30, 20};
    const DrawnPicture picture = drawPixels(
        sceneOf(Group{0.5,
                      {FillShape{Rectangle{}, left, white}, FillShape{Rectangle{}, right, white}}}),
        1);
    // Where the two overlap they are as see-through as anywhere else.
    for (const int x : {25, 45, 65})
        EXPECT_EQ(picture.at(x, 30), 0x80808080u) << x;
    EXPECT_EQ(picture.at(19, 30), 0u);
}

TEST(PixelCanvas, DrawsNothingOfAGroupWithoutOpacity) {
    for (const double opacity : {0.0, -1.0, std::nan("")}) {
        const DrawnPicture picture = drawPixels(
            sceneOf(Group{opacity, {FillShape{Rectangle{}, {20, 20, 30, 20}, white}}}), 1);
        EXPECT_EQ(picture.at(30, 30), 0u);
    }
}

}  // namespace
}  // namespace canvas

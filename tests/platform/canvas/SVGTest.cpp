#include "platform/canvas/Fonts.hpp"
#include "platform/canvas/SVG.hpp"
#include "support/HandMadeScenes.hpp"

#include <gtest/gtest.h>

#include <stdexcept>

namespace canvas {
namespace {

TEST(SVG, IsAsLargeAsTheCardAtEveryScale) {
    for (const double scale : {1.0, 2.0, 3.0}) {
        const std::string document = writeSVG(scenes::volume(), scale, testFonts());
        EXPECT_TRUE(document.starts_with("<?xml")) << document.substr(0, 40);
        EXPECT_NE(document.find("width=\"364px\" height=\"170px\" viewBox=\"0 0 364 170\""),
                  std::string::npos)
            << document.substr(0, 300);
        EXPECT_NE(document.find("</svg>"), std::string::npos);
    }
}

TEST(SVG, HoldsNoPixelsOfWhatHasOutlines) {
    for (const views::Scene& scene : {scenes::volume(), scenes::whatIsOn()})
        EXPECT_EQ(writeSVG(scene, 2, testFonts()).find("<image"), std::string::npos);
}

TEST(SVG, HasTheSceneColors) {
    views::Scene scene{.size = {100, 60}};
    scene.drawing = {views::FillShape{views::Rectangle{}, {10, 10, 20, 20}, {1, 0, 0}}};
    EXPECT_NE(writeSVG(scene, 2, testFonts()).find("rgb(100%,0%,0%)"), std::string::npos);
}

TEST(SVG, SnapsEdgesToThePixelsOfItsScale) {
    views::Scene scene{.size = {100, 60}};
    scene.drawing = {views::FillShape{views::Rectangle{}, {10.3, 10, 20, 20}, {1, 0, 0}}};
    EXPECT_NE(writeSVG(scene, 1, testFonts()).find("M 10 10 L 30 10"), std::string::npos);
    EXPECT_NE(writeSVG(scene, 2, testFonts()).find("M 10.5 10 L 30.5 10"), std::string::npos);
}

TEST(SVG, RefusesACardWithoutSize) {
    EXPECT_THROW(writeSVG({}, 2, testFonts()), std::invalid_argument);
}

}  // namespace
}  // namespace canvas

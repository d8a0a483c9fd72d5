#include "platform/views/Laid.hpp"
#include "platform/views/Probe.hpp"

#include <gtest/gtest.h>

namespace views {
namespace {

constexpr Color amber{0.9, 0.7, 0.3};
constexpr Color grey{0.1, 0.1, 0.1};

TEST(Background, LiesBehindAndTakesTheSizeOfTheView) {
    Frames front;
    Frames behind;
    const View layered = rigid(30, 20, front).background(greedy(behind));
    EXPECT_EQ(sizeOf(layered, {100, 100}), (Size{30, 20}));
    drawn(layered, {100, 100});
    EXPECT_EQ(front, (Frames{{0, 0, 30, 20}}));
    EXPECT_EQ(behind, front);
    const Scene scene = drawn(Color(amber).body().background(grey), {30, 20});
    EXPECT_EQ(scene.drawing, (std::vector<Command>{FillShape{Rectangle{}, {0, 0, 30, 20}, amber}}));
}

TEST(Overlay, LiesInFrontAndTakesTheSizeOfTheView) {
    Frames frames;
    const View layered = rigid(30, 20, frames).overlay(greedy(frames));
    EXPECT_EQ(sizeOf(layered, {100, 100}), (Size{30, 20}));
    drawn(layered, {100, 100});
    EXPECT_EQ(frames, (Frames{{0, 0, 30, 20}, {0, 0, 30, 20}}));
}

TEST(Layering, NeverChangesTheSizeAndCentresWhatIsTooLargeOrTooSmall) {
    Frames frames;
    const View layered =
        greedy(frames).background(rigid(50, 60, frames)).overlay(rigid(10, 4, frames));
    EXPECT_EQ(sizeOf(layered, {30, 20}), (Size{30, 20}));
    drawn(layered, {30, 20});
    EXPECT_EQ(frames, (Frames{{-10, -20, 50, 60}, {0, 0, 30, 20}, {10, 8, 10, 4}}));
}

TEST(Background, OfAColourInAShapeIsThatShapeFilled) {
    Frames frames;
    const RoundedRectangle shape{.cornerRadius = 7};
    const Scene scene = drawn(rigid(22, 22, frames).background(grey, shape), {});
    EXPECT_EQ(scene.drawing, (std::vector<Command>{FillShape{shape, {0, 0, 22, 22}, grey}}));
}

TEST(Layering, StandsInDrawingOrder) {
    Frames frames;
    const RoundedRectangle shape{.cornerRadius = 7};
    const View button = rigid(22, 22, frames)
                            .background(grey, shape)
                            .overlay(shape.strokeBorder(amber, 1))
                            .padding(Edge::top, 3);
    EXPECT_EQ(drawn(button, {}).drawing,
              (std::vector<Command>{
                  FillShape{shape, {0, 3, 22, 22}, grey},
                  StrokeShape{RoundedRectangle{.cornerRadius = 6.5}, {0.5, 3.5, 21, 21}, 1, amber},
              }));
}

}  // namespace
}  // namespace views

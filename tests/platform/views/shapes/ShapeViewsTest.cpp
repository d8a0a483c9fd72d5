#include "platform/views/Laid.hpp"
#include "platform/views/geometry/Color.hpp"
#include "platform/views/shapes/Shape.hpp"

#include <gtest/gtest.h>

namespace views {
namespace {

constexpr Color amber{0.9, 0.7, 0.3};

std::vector<Command> filled(const Shape& shape, const Rect& frame) {
    return {FillShape{shape, frame, amber}};
}

TEST(ShapeView, TakesWhatItIsOffered) {
    for (const View& view : {Rectangle{}.fill(amber), Circle{}.fill(amber),
                             Capsule{}.strokeBorder(amber, 1), View(amber)}) {
        EXPECT_EQ(sizeOf(view, {120, 40}), (Size{120, 40}));
        EXPECT_EQ(sizeOf(view, {}), (Size{10, 10}));
        EXPECT_EQ(sizeOf(view, {0, infinity}), (Size{0, infinity}));
    }
}

TEST(ShapeView, FillsItsFrame) {
    const RoundedRectangle rounded{.cornerRadius = 7};
    EXPECT_EQ(drawn(Rectangle{}.fill(amber), {100, 40}).drawing,
              filled(Rectangle{}, {0, 0, 100, 40}));
    EXPECT_EQ(drawn(Capsule{}.fill(amber), {100, 40}).drawing, filled(Capsule{}, {0, 0, 100, 40}));
    EXPECT_EQ(drawn(rounded.fill(amber), {100, 40}).drawing, filled(rounded, {0, 0, 100, 40}));
}

TEST(ShapeView, OfAColourIsARectangle) {
    EXPECT_EQ(drawn(amber, {100, 40}).drawing, filled(Rectangle{}, {0, 0, 100, 40}));
}

TEST(Circle, IsAsLargeAsItCanBeInTheMiddle) {
    EXPECT_EQ(drawn(Circle{}.fill(amber), {100, 40}).drawing, filled(Circle{}, {30, 0, 40, 40}));
    EXPECT_EQ(drawn(Circle{}.fill(amber), {6, 9}).drawing, filled(Circle{}, {0, 1.5, 6, 6}));
    EXPECT_EQ(drawn(Circle{}.strokeBorder(amber, 2), {100, 40}).drawing,
              (std::vector<Command>{StrokeShape{Circle{}, {31, 1, 38, 38}, 2, amber}}));
}

TEST(StrokeBorder, LiesInsideTheEdgeWithItsCorners) {
    struct Case {
        double radius;
        double lineWidth;
        double insetRadius;
    };
    for (const Case& c : {Case{7, 1, 6.5}, Case{9, 3, 7.5}, Case{0.25, 1, 0}, Case{0, 1, 0}}) {
        const double half = c.lineWidth / 2;
        EXPECT_EQ(drawn(RoundedRectangle{.cornerRadius = c.radius}.strokeBorder(amber, c.lineWidth),
                        {22, 20})
                      .drawing,
                  (std::vector<Command>{StrokeShape{
                      RoundedRectangle{.cornerRadius = c.insetRadius},
                      {half, half, 22 - c.lineWidth, 20 - c.lineWidth},
                      c.lineWidth,
                      amber,
                  }}));
    }
}

}  // namespace
}  // namespace views

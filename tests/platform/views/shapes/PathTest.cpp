#include "platform/views/Laid.hpp"
#include "platform/views/geometry/Color.hpp"
#include "platform/views/shapes/Path.hpp"

#include <gtest/gtest.h>

namespace views {
namespace {

constexpr Color amber{0.9, 0.7, 0.3};
constexpr StrokeStyle line{.lineWidth = 2.2,
                           .lineCap = LineCap::round,
                           .lineJoin = LineJoin::round};

TEST(Path, TakesWhatItIsOffered) {
    EXPECT_EQ(sizeOf(Path{}.fill(amber), {120, 40}), (Size{120, 40}));
    EXPECT_EQ(sizeOf(Path{}.stroke(amber, line), {}), (Size{10, 10}));
}

TEST(Path, IsDrawnWhereItsViewStands) {
    const Path path{{{0, 0}, {10, 5}, {20, 0}}};
    const std::vector<Point> moved{{0, 7}, {10, 12}, {20, 7}};
    EXPECT_EQ(drawn(path.fill(amber).padding(Edge::top, 7), {20, 17}).drawing,
              (std::vector<Command>{FillPath{moved, amber}}));
    EXPECT_EQ(drawn(path.stroke(amber, line).padding(Edge::top, 7), {20, 17}).drawing,
              (std::vector<Command>{StrokePath{moved, line, amber}}));
}

TEST(Path, WithoutPointsDrawsNothing) {
    EXPECT_EQ(drawn(Path{}.fill(amber), {20, 10}).drawing, std::vector<Command>{});
    EXPECT_EQ(drawn(Path{}.stroke(amber, line), {20, 10}).drawing, std::vector<Command>{});
}

TEST(StrokeStyle, IsTheUsualOneUnlessSaid) {
    EXPECT_EQ(StrokeStyle{}, (StrokeStyle{.lineWidth = 1,
                                          .lineCap = LineCap::butt,
                                          .lineJoin = LineJoin::miter,
                                          .miterLimit = 10}));
}

}  // namespace
}  // namespace views

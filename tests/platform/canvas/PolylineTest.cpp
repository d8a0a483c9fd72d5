#include "platform/canvas/Polyline.hpp"

#include <gtest/gtest.h>

#include <limits>

namespace canvas {
namespace {

using views::Point;
using Points = std::vector<Point>;

constexpr PixelGrid grid{.scale = 2};

TEST(Polyline, KeepsAPathWhosePointsStandApart) {
    EXPECT_EQ(pixelPolyline({{0, 1}, {1, 2}, {2, 1.5}}, grid), (Points{{0, 2}, {2, 4}, {4, 3}}));
    EXPECT_TRUE(pixelPolyline({}, grid).empty());
    EXPECT_EQ(pixelPolyline({{3, 4}}, grid), (Points{{6, 8}}));
}

TEST(Polyline, KeepsFewPointsOfOneColumn) {
    const Points column{{0, 5}, {0.01, 1}, {0.02, 9}, {0.03, 4}};
    EXPECT_EQ(pixelPolyline(column, grid).size(), 4u);
}

TEST(Polyline, LeavesTheExtremesOfManyPointsInTheirOrder) {
    Points dense;
    for (int i = 0; i < 100; ++i)
        dense.push_back({i / 1000.0, static_cast<double>(i % 10 + 5)});
    dense[30].y = 50;
    dense[60].y = 1;
    EXPECT_EQ(pixelPolyline(dense, grid), (Points{{0, 10}, {0.06, 100}, {0.12, 2}, {0.198, 28}}));
}

TEST(Polyline, CostsNoMoreThanTheCardIsWide) {
    Points dense;
    for (int i = 0; i < 100000; ++i)
        dense.push_back({146 * i / 99999.0, static_cast<double>(i % 25)});
    EXPECT_LE(pixelPolyline(dense, grid).size(), 146u * 2 * 2 * 4 + 4);
}

TEST(Polyline, LeavesOutWhatIsNoPlace) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double infinity = std::numeric_limits<double>::infinity();
    EXPECT_EQ(pixelPolyline({{0, 0}, {1, nan}, {2, infinity}, {3, 0}}, grid),
              (Points{{0, 0}, {6, 0}}));
}

}  // namespace
}  // namespace canvas

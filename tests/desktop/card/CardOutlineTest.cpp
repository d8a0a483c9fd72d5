#include "desktop/card/CardOutline.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace desktop {
namespace {

TEST(CardOutline, HasTheCardsCornersCutOff) {
    for (const int scale : {1, 2, 3}) {
        const int width = 364 * scale;
        const int height = 170 * scale;
        const double radius = 27.88 * scale;
        const Region outline = cardOutline(width, height, radius);
        const auto contains = [&](int x, int y) {
            return cairo_region_contains_point(outline.get(), x, y) != 0;
        };
        for (int y = 0; y < height; ++y)
            for (int x = 0; x < width; ++x) {
                const double dx = std::max(radius - std::min(x, width - 1 - x) - 0.5, 0.0);
                const double dy = std::max(radius - std::min(y, height - 1 - y) - 0.5, 0.0);
                const double distance = std::hypot(dx, dy);
                if (std::abs(distance - radius) > 1) {
                    ASSERT_EQ(contains(x, y), distance < radius) << x << " " << y;
                }
            }
        cairo_rectangle_int_t extents;
        cairo_region_get_extents(outline.get(), &extents);
        EXPECT_EQ(extents.width, width);
        EXPECT_EQ(extents.height, height);
    }
}

TEST(CardOutline, WithoutCornersOrSizeIsWhatItIs) {
    EXPECT_EQ(cairo_region_num_rectangles(cardOutline(7, 5, 0).get()), 1);
    EXPECT_TRUE(cairo_region_is_empty(cardOutline(0, 0, 28).get()));
}

}  // namespace
}  // namespace desktop

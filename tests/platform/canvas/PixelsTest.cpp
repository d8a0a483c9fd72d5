#include "platform/canvas/Pixels.hpp"

#include <gtest/gtest.h>

#include <stdexcept>

namespace canvas {
namespace {

TEST(Pixels, RoundsEachSideOfACard) {
    EXPECT_EQ(pixelSize({364, 170}, 2), (PixelSize{728, 340}));
    EXPECT_EQ(pixelSize({364, 170}, 1.25), (PixelSize{455, 213}));
    EXPECT_EQ(pixelSize({0.6, 1.4}, 1), (PixelSize{1, 1}));
}

TEST(Pixels, RefusesMoreThanAPictureMayHave) {
    EXPECT_NO_THROW(pixelSize({16384, 4096}, 1));
    EXPECT_THROW(pixelSize({16385, 10}, 1), std::invalid_argument);
    EXPECT_THROW(pixelSize({16384, 4097}, 1), std::invalid_argument);
    EXPECT_THROW(pixelSize({0.4, 10}, 1), std::invalid_argument);
}

TEST(Pixels, HandsOutItsRows) {
    const std::uint32_t argb[] = {1, 2, 3, 4, 5, 6};
    const Pixels pixels{{2, 3}, argb};
    EXPECT_EQ(pixels.row(1)[0], 3u);
    EXPECT_EQ(pixels.row(2).size(), 2u);
}

}  // namespace
}  // namespace canvas

#include "platform/canvas/Blend.hpp"

#include <gtest/gtest.h>

#include <array>
#include <cmath>

namespace canvas {
namespace {

TEST(Blend, FadesEveryChannelToTheNearestNumber) {
    for (std::uint32_t value = 0; value < 256; ++value) {
        for (std::uint32_t part = 0; part < 256; ++part) {
            const auto expected = static_cast<std::uint32_t>(std::lround(value * part / 255.0));
            ASSERT_EQ(faded(value * 0x01010101u, part), expected * 0x01010101u)
                << value << ' ' << part;
        }
    }
}

TEST(Blend, LaysAnOpaqueColorOverAnythingAndNothingOverItself) {
    EXPECT_EQ(over(0xFF102030, 0x80402010), 0xFF102030);
    EXPECT_EQ(over(0, 0x80402010), 0x80402010u);
}

TEST(Blend, NeverCarriesFromOneChannelIntoAnother) {
    for (std::uint32_t alpha = 0; alpha < 256; ++alpha) {
        for (std::uint32_t below = 0; below < 256; ++below) {
            const std::uint32_t result = over(alpha * 0x01010101u, below * 0x01010101u);
            const std::uint32_t channel = result & 0xFF;
            ASSERT_EQ(result, channel * 0x01010101u);
            ASSERT_NEAR(channel, alpha + below * (255 - alpha) / 255.0, 0.5);
        }
    }
}

TEST(Blend, TreatsAPixelAlikeWhereverItStandsInALongRow) {
    for (const std::uint32_t color : {0xFF8040C0u, 0x80402060u}) {
        for (std::size_t count = 0; count <= 40; ++count) {
            for (std::size_t hole = 0; hole < count; ++hole) {
                std::array<std::uint8_t, 40> coverage{};
                coverage.fill(255);
                coverage[hole] = 100;
                std::array<std::uint32_t, 40> row{};
                row.fill(0xFF112233);
                blendColor(row.data(), coverage.data(), count, color);
                for (std::size_t i = 0; i < row.size(); ++i) {
                    const std::uint32_t expected =
                        i < count ? over(faded(color, coverage[i]), 0xFF112233) : 0xFF112233;
                    ASSERT_EQ(row[i], expected) << count << ' ' << hole << ' ' << i;
                }
            }
        }
    }
}

TEST(Blend, KeepsOfEachPixelAsMuchAsIsCovered) {
    constexpr std::uint32_t color = 0xFF806040;
    for (std::size_t count = 0; count <= 40; ++count) {
        for (const std::uint32_t around : {0u, 255u}) {
            for (std::size_t edge = 0; edge < count; ++edge) {
                std::array<std::uint8_t, 40> coverage{};
                coverage.fill(static_cast<std::uint8_t>(around));
                coverage[edge] = 51;
                std::array<std::uint32_t, 40> row{};
                row.fill(color);
                keepCovered(row.data(), coverage.data(), count);
                for (std::size_t i = 0; i < row.size(); ++i) {
                    const std::uint32_t expected = i < count ? faded(color, coverage[i]) : color;
                    ASSERT_EQ(row[i], expected)
                        << count << ' ' << around << ' ' << edge << ' ' << i;
                }
            }
        }
    }
}

}  // namespace
}  // namespace canvas

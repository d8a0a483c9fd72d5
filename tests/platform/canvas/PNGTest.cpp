#include "platform/canvas/Drawing.hpp"
#include "platform/canvas/PNG.hpp"
#include "support/HandMadeScenes.hpp"

#include <gtest/gtest.h>
#include <png.h>

#include <stdexcept>

namespace canvas {
namespace {

/// The straight RGBA bytes of a PNG file, by libpng's own reader.
std::vector<std::uint8_t> decoded(const std::string& file, PixelSize& size) {
    png_image image{};
    image.version = PNG_IMAGE_VERSION;
    EXPECT_TRUE(png_image_begin_read_from_memory(&image, file.data(), file.size()));
    image.format = PNG_FORMAT_RGBA;
    std::vector<std::uint8_t> bytes(PNG_IMAGE_SIZE(image));
    EXPECT_TRUE(png_image_finish_read(&image, nullptr, bytes.data(), 0, nullptr));
    size = {static_cast<int>(image.width), static_cast<int>(image.height)};
    return bytes;
}

TEST(PNG, HoldsEveryPixelUnpremultiplied) {
    std::vector<std::uint32_t> argb;
    for (std::uint32_t alpha = 0; alpha < 256; ++alpha) {
        for (std::uint32_t part = 0; part < 256; ++part) {
            const std::uint32_t component = (part * alpha + 127) / 255;
            argb.push_back(alpha << 24 | component << 16 | (alpha - component) << 8 |
                           component / 2);
        }
    }
    PixelSize size;
    const std::vector<std::uint8_t> rgba = decoded(encodePNG({{256, 256}, argb}), size);
    ASSERT_EQ(size, (PixelSize{256, 256}));
    for (std::size_t i = 0; i < argb.size(); ++i) {
        const std::uint32_t alpha = argb[i] >> 24;
        ASSERT_EQ(rgba[i * 4 + 3], alpha);
        if (alpha == 0)
            continue;
        for (const auto& [channel, shift] : {std::pair{0u, 16}, {1u, 8}, {2u, 0}}) {
            const double straight = (argb[i] >> shift & 0xFF) * 255.0 / alpha;
            ASSERT_NEAR(rgba[i * 4 + channel], straight, 0.5) << alpha;
        }
    }
}

TEST(PNG, KeepsSizesThatAreNoMultipleOfAnything) {
    for (int width = 1; width < 20; width += 3) {
        for (int height = 1; height < 20; height += 4) {
            const std::vector<std::uint32_t> argb(PixelSize{width, height}.count(), 0xFF336699);
            PixelSize size;
            const auto rgba = decoded(encodePNG({{width, height}, argb}), size);
            EXPECT_EQ(size, (PixelSize{width, height}));
            EXPECT_EQ(rgba.back(), 255);
            EXPECT_EQ(rgba.front(), 0x33);
        }
    }
}

TEST(PNG, SaysThatItsColorsAreSRGB) {
    const std::uint32_t pixel = 0xFFFFFFFF;
    EXPECT_NE(encodePNG({{1, 1}, {&pixel, 1}}).find("sRGB"), std::string::npos);
}

TEST(PNG, RefusesAPictureWithoutPixels) {
    for (const PixelSize size : {PixelSize{0, 0}, {0, 5}, {5, 0}, {-1, 5}}) {
        try {
            encodePNG({size, {}});
            FAIL() << size.width << 'x' << size.height;
        } catch (const std::runtime_error& error) {
            EXPECT_TRUE(std::string_view(error.what()).starts_with("no PNG: ")) << error.what();
        }
    }
}

TEST(PNG, ShowsACardAsItWasDrawn) {
    const DrawnPicture picture = drawPixels(scenes::volume(), 2);
    PixelSize size;
    const auto rgba = decoded(encodePNG({picture.size, picture.argb}), size);
    EXPECT_EQ(size, (PixelSize{728, 340}));
    EXPECT_EQ(rgba[3], 0);
    const std::size_t middle = (170u * 728 + 20) * 4;
    EXPECT_EQ(rgba[middle], 0x16);
    EXPECT_EQ(rgba[middle + 3], 255);
}

}  // namespace
}  // namespace canvas

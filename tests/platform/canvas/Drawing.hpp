#pragma once

#include "platform/canvas/Fonts.hpp"
#include "platform/canvas/PixelCanvas.hpp"
#include "platform/canvas/VectorCanvas.hpp"
#include "support/PictureComparison.hpp"

#include <cairo.h>

#include <cstdint>
#include <utility>
#include <vector>

/// A picture that a test looks at pixel by pixel.
struct DrawnPicture {
    canvas::PixelSize size;
    std::vector<std::uint32_t> argb;

    std::uint32_t at(int x, int y) const {
        return argb.at(static_cast<std::size_t>(y) * static_cast<std::size_t>(size.width) +
                       static_cast<std::size_t>(x));
    }
    int alpha(int x, int y) const { return static_cast<int>(at(x, y) >> 24); }
};

inline DrawnPicture drawPixels(const views::Scene& scene, double scale) {
    canvas::PixelCanvas canvas(testFonts());
    const canvas::Pixels pixels = canvas.draw(scene, scale);
    return {pixels.size, {pixels.argb.begin(), pixels.argb.end()}};
}

/// The same through the plain player.
inline DrawnPicture drawPlainly(const views::Scene& scene, double scale) {
    const canvas::PixelSize size = canvas::pixelSize(scene.size, scale);
    DrawnPicture picture{size, std::vector<std::uint32_t>(size.count())};
    cairo_surface_t* surface = cairo_image_surface_create_for_data(
        reinterpret_cast<unsigned char*>(picture.argb.data()), CAIRO_FORMAT_ARGB32, size.width,
        size.height, size.width * 4);
    cairo_t* cairo = cairo_create(surface);
    cairo_scale(cairo, scale, scale);
    canvas::drawScene(cairo, scene, scale, testFonts());
    EXPECT_EQ(cairo_status(cairo), CAIRO_STATUS_SUCCESS);
    cairo_destroy(cairo);
    cairo_surface_destroy(surface);
    return picture;
}

/// A card of one command on nothing.
inline views::Scene sceneOf(views::Command command, views::Size size = {100, 60}) {
    return {.size = size, .drawing = {std::move(command)}};
}

inline constexpr double everyScale[] = {1, 1.25, 1.5, 2, 3};
inline constexpr views::Color white{1, 1, 1};

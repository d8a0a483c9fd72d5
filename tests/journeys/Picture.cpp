#include "journeys/Picture.hpp"

#include "platform/canvas/PNG.hpp"

#include <cairo.h>

#include <fstream>
#include <memory>

namespace journeys {

namespace {

struct SurfaceDeleter {
    void operator()(cairo_surface_t* surface) const { cairo_surface_destroy(surface); }
};

}  // namespace

Picture Picture::read(const std::filesystem::path& png) {
    const std::unique_ptr<cairo_surface_t, SurfaceDeleter> surface(
        cairo_image_surface_create_from_png(png.c_str()));
    if (cairo_surface_status(surface.get()) != CAIRO_STATUS_SUCCESS)
        return {};
    const canvas::PixelSize size{cairo_image_surface_get_width(surface.get()),
                                 cairo_image_surface_get_height(surface.get())};
    const auto* pixels =
        reinterpret_cast<const std::uint32_t*>(cairo_image_surface_get_data(surface.get()));
    return {size, {pixels, pixels + size.count()}};
}

void Picture::write(const std::filesystem::path& png) const {
    std::ofstream(png, std::ios::binary) << canvas::encodePNG({size, argb});
}

}  // namespace journeys

#include "platform/canvas/Stencil.hpp"

#include "platform/canvas/Handles.hpp"

#include <algorithm>
#include <cmath>
#include <new>

namespace canvas {

namespace {

/// Draws over an area of a surface whose rows are `rowBytes` apart.
void drawInto(unsigned char* bytes,
              cairo_format_t format,
              int rowBytes,
              const PixelRect& area,
              const Draw& draw) {
    const SurfaceHandle surface(
        cairo_image_surface_create_for_data(bytes, format, area.width, area.height, rowBytes));
    cairo_surface_set_device_offset(surface.get(), -area.x, -area.y);
    const CairoHandle cairo(cairo_create(surface.get()));
    draw(cairo.get());
    cairo_surface_flush(surface.get());
    if (cairo_status(cairo.get()) == CAIRO_STATUS_NO_MEMORY)
        throw std::bad_alloc();
}

}  // namespace

PixelRect inkArea(const Draw& draw) {
    const SurfaceHandle surface(cairo_recording_surface_create(CAIRO_CONTENT_COLOR_ALPHA, nullptr));
    const CairoHandle cairo(cairo_create(surface.get()));
    draw(cairo.get());
    double x = 0;
    double y = 0;
    double width = 0;
    double height = 0;
    cairo_recording_surface_ink_extents(surface.get(), &x, &y, &width, &height);
    if (!(width > 0 && height > 0))
        return {};
    return between(static_cast<int>(std::floor(x)), static_cast<int>(std::floor(y)),
                   static_cast<int>(std::ceil(x + width)), static_cast<int>(std::ceil(y + height)));
}

Mask drawMask(const PixelRect& area, const Draw& draw) {
    if (area.empty())
        return {};
    Mask mask{area, {}};
    const int rowBytes = cairo_format_stride_for_width(CAIRO_FORMAT_A8, area.width);
    std::vector<unsigned char> bytes(static_cast<std::size_t>(rowBytes) *
                                     static_cast<std::size_t>(area.height));
    drawInto(bytes.data(), CAIRO_FORMAT_A8, rowBytes, area, draw);
    mask.coverage.resize(area.count());
    for (int y = 0; y < area.height; ++y)
        std::copy_n(bytes.begin() + static_cast<std::ptrdiff_t>(y) * rowBytes, area.width,
                    mask.coverage.begin() + static_cast<std::ptrdiff_t>(y) * area.width);
    return mask;
}

Picture drawPicture(const PixelRect& area, const Draw& draw) {
    if (area.empty())
        return {};
    Picture picture{area, std::vector<std::uint32_t>(area.count())};
    drawInto(reinterpret_cast<unsigned char*>(picture.argb.data()), CAIRO_FORMAT_ARGB32,
             area.width * 4, area, draw);
    return picture;
}

}  // namespace canvas

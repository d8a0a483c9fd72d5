#include "platform/canvas/Stamp.hpp"

#include "platform/canvas/Blend.hpp"

#include <cmath>

namespace canvas {

namespace {

double bounded(double component) {
    return component > 0 ? std::min(component, 1.0) : 0;
}

std::uint32_t byte(double component) {
    return static_cast<std::uint32_t>(std::lround(component * 255));
}

std::size_t indexAt(const PixelRect& area, int x, int y) {
    return static_cast<std::size_t>(y - area.y) * static_cast<std::size_t>(area.width) +
           static_cast<std::size_t>(x - area.x);
}

/// Calls blend(pixels, stencil's first index, count) for each row of the stencil on the canvas.
template <class BlendRow>
void forEachRow(const PixelRect& stencil, const Canvas& canvas, BlendRow blend) {
    const PixelRect visible = shared(stencil, canvas.area);
    if (visible.empty())
        return;
    for (int y = visible.y; y < visible.bottom(); ++y)
        blend(canvas.argb.data() + indexAt(canvas.area, visible.x, y),
              indexAt(stencil, visible.x, y), static_cast<std::size_t>(visible.width));
}

}  // namespace

std::uint32_t premultiplied(const views::Color& color) {
    const double alpha = bounded(color.alpha);
    return byte(alpha) << 24 | byte(bounded(color.red) * alpha) << 16 |
           byte(bounded(color.green) * alpha) << 8 | byte(bounded(color.blue) * alpha);
}

void press(const Stamp& stamp, const Canvas& canvas) {
    const std::uint32_t color = premultiplied(stamp.color);
    const Mask& mask = stamp.stencil->mask;
    forEachRow(mask.area.movedBy(stamp.x, stamp.y), canvas,
               [&](std::uint32_t* pixels, std::size_t first, std::size_t count) {
                   blendColor(pixels, mask.coverage.data() + first, count, color);
               });
    const Picture& picture = stamp.stencil->picture;
    forEachRow(picture.area.movedBy(stamp.x, stamp.y), canvas,
               [&](std::uint32_t* pixels, std::size_t first, std::size_t count) {
                   blendPixels(pixels, picture.argb.data() + first, count, color >> 24);
               });
}

}  // namespace canvas

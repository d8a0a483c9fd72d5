#pragma once

#include "platform/canvas/PixelRect.hpp"

#include <cairo.h>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <vector>

namespace canvas {

/// How much of each pixel is covered, 0 to 255, rows without gaps. Empty where nothing is drawn.
struct Mask {
    PixelRect area;
    std::vector<std::uint8_t> coverage;
};

/// Premultiplied ARGB pixels, rows without gaps. Empty where nothing is drawn.
struct Picture {
    PixelRect area;
    std::vector<std::uint32_t> argb;
};

/// A drawing that can be laid down again and again: what takes the colour it is laid down in, and
/// what has colours of its own. Areas are counted from where it is laid down.
struct Stencil {
    Mask mask;
    Picture picture;

    PixelRect area() const { return around(mask.area, picture.area); }
    std::size_t bytes() const { return mask.coverage.size() + picture.argb.size() * 4; }
};

using Draw = std::function<void(cairo_t*)>;

/// The pixels around what is drawn.
PixelRect inkArea(const Draw& draw);

/// What a drawing covers of an area, whatever its colours. Throws std::bad_alloc without memory.
Mask drawMask(const PixelRect& area, const Draw& draw);

/// The drawing itself over an area.
Picture drawPicture(const PixelRect& area, const Draw& draw);

}  // namespace canvas

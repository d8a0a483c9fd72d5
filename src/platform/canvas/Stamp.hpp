#pragma once

#include "platform/canvas/Pixels.hpp"
#include "platform/canvas/Stencil.hpp"
#include "platform/views/geometry/Color.hpp"

#include <memory>
#include <span>

namespace canvas {

/// Pixels that are drawn into, and where they stand.
struct Canvas {
    PixelRect area;
    std::span<std::uint32_t> argb;
};

/// A stencil laid down at a place in a colour. The colour's opacity also fades the colours that the
/// stencil has of its own.
struct Stamp {
    std::shared_ptr<const Stencil> stencil;
    int x = 0;
    int y = 0;
    views::Color color;

    PixelRect area() const { return stencil->area().movedBy(x, y); }
};

/// Lays the stamp down; what falls beside the canvas is left out.
void press(const Stamp& stamp, const Canvas& canvas);

/// The colour, premultiplied; components beyond 0 to 1 are brought inside, what is no number is 0.
std::uint32_t premultiplied(const views::Color& color);

}  // namespace canvas

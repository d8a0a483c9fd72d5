#pragma once

#include "platform/views/geometry/Geometry.hpp"

#include <cstddef>
#include <cstdint>
#include <span>
#include <stdexcept>

namespace canvas {

struct PixelSize {
    int width = 0;
    int height = 0;
    bool operator==(const PixelSize&) const = default;

    std::size_t count() const {
        return static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
    }
};

/// A picture would have no pixel.
struct EmptyPicture : std::invalid_argument {
    using std::invalid_argument::invalid_argument;
};

/// Pixels of a card at a scale, each side rounded. Throws EmptyPicture for a size or scale that is
/// not a positive number or comes to no pixel, and std::invalid_argument for one that comes to more
/// pixels than a picture may have.
PixelSize pixelSize(const views::Size& size, double scale);

/// A look at a picture: premultiplied ARGB, one number in machine order per pixel, rows from the
/// top without gaps. Does not own the pixels.
struct Pixels {
    PixelSize size;
    std::span<const std::uint32_t> argb;

    std::span<const std::uint32_t> row(int y) const {
        const auto width = static_cast<std::size_t>(size.width);
        return argb.subspan(static_cast<std::size_t>(y) * width, width);
    }
};

}  // namespace canvas

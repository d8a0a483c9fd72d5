#include "platform/canvas/Pixels.hpp"

#include <cmath>

namespace canvas {

namespace {

constexpr double longestSide = 16384;       // pixels
constexpr double largestPicture = 1 << 26;  // pixels: 256 MB

}  // namespace

PixelSize pixelSize(const views::Size& size, double scale) {
    const double width = std::round(size.width * scale);
    const double height = std::round(size.height * scale);
    const bool positive = scale > 0 && width >= 1 && height >= 1;
    if (!positive)
        throw EmptyPicture("a picture needs a positive size and scale");
    if (!(width <= longestSide && height <= longestSide && width * height <= largestPicture))
        throw std::invalid_argument("the picture would be too large");
    return {static_cast<int>(width), static_cast<int>(height)};
}

}  // namespace canvas

#pragma once

#include <algorithm>
#include <cstddef>

namespace canvas {

/// A rectangle of whole pixels; empty where a side is 0.
struct PixelRect {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
    bool operator==(const PixelRect&) const = default;

    int right() const { return x + width; }
    int bottom() const { return y + height; }
    bool empty() const { return width <= 0 || height <= 0; }
    std::size_t count() const {
        return empty() ? 0 : static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
    }
    PixelRect movedBy(int dx, int dy) const { return {x + dx, y + dy, width, height}; }
};

inline PixelRect between(int left, int top, int right, int bottom) {
    return {left, top, std::max(right - left, 0), std::max(bottom - top, 0)};
}

/// What two rectangles share.
inline PixelRect shared(const PixelRect& a, const PixelRect& b) {
    return between(std::max(a.x, b.x), std::max(a.y, b.y), std::min(a.right(), b.right()),
                   std::min(a.bottom(), b.bottom()));
}

/// The smallest rectangle around two.
inline PixelRect around(const PixelRect& a, const PixelRect& b) {
    if (a.empty())
        return b;
    if (b.empty())
        return a;
    return between(std::min(a.x, b.x), std::min(a.y, b.y), std::max(a.right(), b.right()),
                   std::max(a.bottom(), b.bottom()));
}

}  // namespace canvas

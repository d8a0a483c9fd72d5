#pragma once

#include "platform/canvas/PixelRect.hpp"
#include "platform/views/geometry/Geometry.hpp"

#include <algorithm>
#include <cmath>

namespace canvas {

/// The pixels that points of a card fall on. An edge goes to the nearest pixel edge, a tie
/// downwards and to the right.
struct PixelGrid {
    double scale = 1;  // pixels per point

    // Farther than any picture reaches, and near enough for Cairo to count in.
    static constexpr double farthest = 1 << 21;  // pixels

    /// Requires a number.
    int edge(double coordinate) const {
        return static_cast<int>(
            std::clamp(std::floor(coordinate * scale + 0.5), -farthest, farthest));
    }

    PixelRect edges(const views::Rect& frame) const {
        return between(edge(frame.x), edge(frame.y), edge(frame.right()), edge(frame.bottom()));
    }

    /// In points again.
    views::Rect snapped(const views::Rect& frame) const {
        const PixelRect pixels = edges(frame);
        return {pixels.x / scale, pixels.y / scale, pixels.width / scale, pixels.height / scale};
    }

    /// In pixels, not snapped; requires numbers.
    views::Point pixels(views::Point point) const {
        return {std::clamp(point.x * scale, -farthest, farthest),
                std::clamp(point.y * scale, -farthest, farthest)};
    }
};

inline bool isFinite(const views::Point& point) {
    return std::isfinite(point.x) && std::isfinite(point.y);
}

inline bool isFinite(const views::Rect& rect) {
    return std::isfinite(rect.x) && std::isfinite(rect.y) && std::isfinite(rect.right()) &&
           std::isfinite(rect.bottom());
}

}  // namespace canvas

#pragma once

#include "platform/views/geometry/Geometry.hpp"
#include "platform/views/shapes/StrokeStyle.hpp"

#include <vector>

namespace views {

class View;
struct Color;

/// A polyline in the coordinates of the view it becomes. Without points there is nothing to draw.
struct Path {
    std::vector<Point> points;
    bool operator==(const Path&) const = default;

    /// The polygon, closed, filled by the non-zero rule.
    View fill(const Color& color) const;
    View stroke(const Color& color, const StrokeStyle& style) const;
};

}  // namespace views

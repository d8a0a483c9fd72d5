#pragma once

#include "platform/views/geometry/Geometry.hpp"
#include "platform/views/shapes/Shape.hpp"

#include <variant>
#include <vector>

namespace views {

struct MoveTo {
    Point to;
    bool operator==(const MoveTo&) const = default;
};
struct LineTo {
    Point to;
    bool operator==(const LineTo&) const = default;
};
/// A cubic Bézier segment.
struct CurveTo {
    Point control1;
    Point control2;
    Point to;
    bool operator==(const CurveTo&) const = default;
};
struct ClosePath {
    bool operator==(const ClosePath&) const = default;
};

using OutlineElement = std::variant<MoveTo, LineTo, CurveTo, ClosePath>;
using Outline = std::vector<OutlineElement>;

/// The closed outline of a shape in its frame; empty where a side is 0 or less, or a number of the
/// frame is not finite.
Outline outline(const Shape& shape, const Rect& frame);

}  // namespace views

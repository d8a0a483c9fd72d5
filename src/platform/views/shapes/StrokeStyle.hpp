#pragma once

namespace views {

enum class LineCap { butt, round };
enum class LineJoin { miter, round };

/// How a path is stroked; the line width is in points.
struct StrokeStyle {
    double lineWidth = 1;
    LineCap lineCap = LineCap::butt;
    LineJoin lineJoin = LineJoin::miter;
    double miterLimit = 10;
    bool operator==(const StrokeStyle&) const = default;
};

}  // namespace views

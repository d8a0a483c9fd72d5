#include "platform/canvas/Tracing.hpp"

#include <cmath>
#include <variant>

namespace canvas {

namespace {

constexpr double widestLine = 16384;  // pixels

struct Tracer {
    cairo_t* cairo;

    void operator()(const views::MoveTo& move) const { cairo_move_to(cairo, move.to.x, move.to.y); }
    void operator()(const views::LineTo& line) const { cairo_line_to(cairo, line.to.x, line.to.y); }
    void operator()(const views::CurveTo& curve) const {
        cairo_curve_to(cairo, curve.control1.x, curve.control1.y, curve.control2.x,
                       curve.control2.y, curve.to.x, curve.to.y);
    }
    void operator()(const views::ClosePath&) const { cairo_close_path(cairo); }
};

}  // namespace

void trace(cairo_t* cairo, const views::Outline& outline) {
    for (const views::OutlineElement& element : outline)
        std::visit(Tracer{cairo}, element);
}

void trace(cairo_t* cairo, const std::vector<views::Point>& points) {
    cairo_new_sub_path(cairo);
    for (const views::Point& point : points)
        cairo_line_to(cairo, point.x, point.y);
}

bool canStroke(const views::StrokeStyle& style, double scale) {
    return style.lineWidth > 0 && style.lineWidth * scale <= widestLine &&
           std::isfinite(style.miterLimit);
}

views::StrokeStyle symbolPen(double lineWidth) {
    return {lineWidth, views::LineCap::round, views::LineJoin::round};
}

void setPen(cairo_t* cairo, const views::StrokeStyle& style, double unit) {
    cairo_set_line_width(cairo, style.lineWidth * unit);
    cairo_set_line_cap(
        cairo, style.lineCap == views::LineCap::round ? CAIRO_LINE_CAP_ROUND : CAIRO_LINE_CAP_BUTT);
    cairo_set_line_join(cairo, style.lineJoin == views::LineJoin::round ? CAIRO_LINE_JOIN_ROUND
                                                                        : CAIRO_LINE_JOIN_MITER);
    cairo_set_miter_limit(cairo, style.miterLimit);
}

}  // namespace canvas

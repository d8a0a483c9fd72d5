#pragma once

#include "platform/views/geometry/Geometry.hpp"
#include "platform/views/shapes/Outline.hpp"
#include "platform/views/shapes/StrokeStyle.hpp"

#include <cairo.h>

#include <vector>

namespace canvas {

/// Adds an outline to Cairo's path.
void trace(cairo_t* cairo, const views::Outline& outline);

/// Adds an open polyline to Cairo's path.
void trace(cairo_t* cairo, const std::vector<views::Point>& points);

/// Whether a style draws anything at all at `scale` pixels per point: its line has some width, and
/// not more than Cairo can count in.
bool canStroke(const views::StrokeStyle& style, double scale);

/// The pen of a symbol's lines.
views::StrokeStyle symbolPen(double lineWidth);

/// Sets Cairo's pen; `unit` is what a point comes to in Cairo's coordinates.
void setPen(cairo_t* cairo, const views::StrokeStyle& style, double unit);

}  // namespace canvas

#pragma once

#include "platform/views/geometry/Geometry.hpp"

#include <optional>

namespace widgethost {

/// Which way an arrow key moves.
enum class Direction { left, right, up, down };

/// How far it is from one point to another for an arrow key, which goes straight rather than far: a
/// point off the straight line counts `aside` points. Nothing where the other does not lie on that
/// side, by a point at least.
std::optional<double> distance(views::Point from, views::Point to, Direction way, double aside);

}  // namespace widgethost

#pragma once

#include "platform/canvas/PixelGrid.hpp"
#include "platform/views/geometry/Geometry.hpp"

#include <vector>

namespace canvas {

/// The finite ones of a path's points in pixels. Of many in a row within half a pixel's width only
/// the first, the highest, the lowest and the last are left: they draw the same, and a curve costs
/// no more than the card is wide, however many points it has.
std::vector<views::Point> pixelPolyline(const std::vector<views::Point>& points,
                                        const PixelGrid& grid);

}  // namespace canvas

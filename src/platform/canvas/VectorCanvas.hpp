#pragma once

#include "platform/canvas/FontLibrary.hpp"
#include "platform/views/scene/Scene.hpp"

struct _cairo;

namespace canvas {

/// Draws a scene as paths, in points, inside the card's rounded corners. `scale` is the pixels per
/// point that edges and baselines snap to; it does not change the size. Coordinates that are not
/// finite are left out.
void drawScene(_cairo* cairo, const views::Scene& scene, double scale, FontLibrary& fonts);

}  // namespace canvas

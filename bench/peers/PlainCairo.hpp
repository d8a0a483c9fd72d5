#pragma once

#include "platform/views/scene/Scene.hpp"

#include <cairo.h>

namespace peers {

/// Draws a scene as a plain program would: Cairo paths, and a new Pango layout for every line of
/// text in the system's font configuration. `scale` is the pixels per point.
void drawPlainly(cairo_t* cairo, const views::Scene& scene, double scale);

/// A new image surface for a scene.
cairo_surface_t* plainSurface(const views::Scene& scene, double scale);

}  // namespace peers

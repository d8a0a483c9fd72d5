#pragma once

#include "platform/canvas/FontLibrary.hpp"
#include "platform/views/scene/Scene.hpp"

#include <string>

namespace canvas {

/// The scene as an SVG document as large as the card, one user unit a point, texts as outlines;
/// `scale` is the pixels per point that edges snap to. Throws std::invalid_argument as pixelSize
/// does, std::runtime_error when the document cannot be made.
std::string writeSVG(const views::Scene& scene, double scale, FontLibrary& fonts);

}  // namespace canvas

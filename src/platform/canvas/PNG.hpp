#pragma once

#include "platform/canvas/Pixels.hpp"

#include <string>

namespace canvas {

/// The picture as a PNG file's bytes: RGBA, 8 bits, sRGB. Throws std::runtime_error when it cannot
/// be encoded.
std::string encodePNG(const Pixels& pixels);

}  // namespace canvas

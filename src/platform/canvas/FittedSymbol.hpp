#pragma once

#include "platform/views/geometry/Geometry.hpp"
#include "platform/views/scene/Scene.hpp"
#include "platform/views/symbols/SymbolArtwork.hpp"

#include <cairo.h>

#include <optional>

namespace canvas {

/// Where a symbol's artwork comes to stand in pixels, moved by part of a pixel so that it is crisp:
/// a sign's bars fill whole pixels and stay symmetrical, a picture's left edge and middle stand on
/// the grid.
struct FittedSymbol {
    const views::SymbolArtwork* artwork = nullptr;
    int x = 0;  // the pixel that it is counted from
    int y = 0;
    views::Point middle;  // of the artwork, in pixels from there
    double em = 0;        // in pixels
};

/// Where a symbol stands at `scale` pixels per point; nothing for an unknown name, and for a place
/// or size that is no sensible number.
std::optional<FittedSymbol> fitSymbol(const views::DrawSymbol& symbol, double scale);

/// Draws the artwork in the source that is set, in pixels counted from (x, y).
void drawSymbol(cairo_t* cairo, const FittedSymbol& symbol);

}  // namespace canvas

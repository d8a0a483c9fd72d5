#pragma once

#include "platform/canvas/Handles.hpp"
#include "platform/views/text/TextMeasurer.hpp"

#include <vector>

namespace canvas {

/// Glyphs of one font, in points from the line's start on its baseline.
struct TextRun {
    ScaledFontHandle font;
    bool coloured = false;  // its glyphs are pictures with colours of their own
    std::vector<cairo_glyph_t> glyphs;
};

/// A text set on one line, glyphs from left to right as they are seen.
struct TextLine {
    double width = 0;  // points, tracking after the last glyph included
    std::vector<TextRun> runs;
    std::vector<views::TextCluster> clusters;  // in the order of the text
};

/// Whether a font can be drawn at `scale` pixels per point: neither too small to be seen nor larger
/// than a font engine can count in.
bool canDrawText(const views::Font& font, double scale);

/// Adds the outlines of the glyphs that take the text's colour to the path; origin is the line's
/// start on its baseline, unit a point.
void traceGlyphs(cairo_t* cairo, const TextLine& line);

/// Whether some glyphs have colours of their own.
bool hasColouredGlyphs(const TextLine& line);

/// Draws the glyphs that have colours of their own.
void showColouredGlyphs(cairo_t* cairo, const TextLine& line);

}  // namespace canvas

#include "platform/canvas/TextLine.hpp"

#include <algorithm>

namespace canvas {

bool canDrawText(const views::Font& font, double scale) {
    constexpr double smallestEm = 0.0625;  // pixels
    constexpr double largestEm = 16384;
    return font.size * scale >= smallestEm && font.size * scale <= largestEm;
}

void traceGlyphs(cairo_t* cairo, const TextLine& line) {
    for (const TextRun& run : line.runs) {
        if (run.coloured)
            continue;
        cairo_set_scaled_font(cairo, run.font.get());
        cairo_glyph_path(cairo, run.glyphs.data(), static_cast<int>(run.glyphs.size()));
    }
}

bool hasColouredGlyphs(const TextLine& line) {
    return std::any_of(line.runs.begin(), line.runs.end(),
                       [](const TextRun& run) { return run.coloured; });
}

void showColouredGlyphs(cairo_t* cairo, const TextLine& line) {
    for (const TextRun& run : line.runs) {
        if (!run.coloured)
            continue;
        cairo_set_scaled_font(cairo, run.font.get());
        // One at a time: of several in one call, a recording surface keeps the last alone while
        // nothing has been drawn on it.
        for (const cairo_glyph_t& glyph : run.glyphs)
            cairo_show_glyphs(cairo, &glyph, 1);
    }
}

}  // namespace canvas

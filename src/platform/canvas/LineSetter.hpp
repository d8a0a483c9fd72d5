#pragma once

#include "platform/canvas/DrawableText.hpp"
#include "platform/canvas/FontSource.hpp"
#include "platform/canvas/TextLine.hpp"
#include "platform/views/text/Font.hpp"

namespace canvas {

struct LineSet {
    TextLine line;
    bool complete = true;  // false when the source has no glyph for some character
};

/// Sets a text on one line in a source's fonts. The clusters' ends are byte offsets in the text
/// that the drawable text was made from. What no font of the source has a glyph for shows as a box;
/// where there are no fonts, as nothing.
LineSet setLine(const FontSource& source,
                const DrawableText& text,
                const views::Font& font,
                double tracking);

}  // namespace canvas

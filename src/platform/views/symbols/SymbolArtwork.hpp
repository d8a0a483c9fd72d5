#pragma once

#include "platform/views/geometry/Geometry.hpp"
#include "platform/views/shapes/Outline.hpp"
#include "platform/views/text/Font.hpp"

#include <string_view>
#include <vector>

namespace views {

/// A line of a symbol's artwork; round caps and joins.
struct SymbolStroke {
    Outline path;
    double lineWidth = 0;
};

/// The drawing of a symbol for one weight, in em, origin at the top-left of its bounds: outlines
/// filled by the non-zero rule and lines, all in one colour.
struct SymbolArtwork {
    Size bounds;
    Outline fill;
    std::vector<SymbolStroke> strokes;
};

/// The artwork of one of the four symbols "plus", "minus", "speaker.wave.2.fill" and
/// "speaker.slash.fill"; nothing for a name that is none of them.
const SymbolArtwork* symbolArtwork(std::string_view name, FontWeight weight);

}  // namespace views

#pragma once

#include "platform/views/text/Font.hpp"

#include <cstddef>
#include <string_view>
#include <vector>

namespace views {

/// A piece of text that is never cut inside: one user-perceived character.
struct TextCluster {
    std::size_t end = 0;  // byte offset behind the cluster
    double advance = 0;   // points, tracking included
    bool operator==(const TextCluster&) const = default;
};

/// The one service layout needs from a text engine. Texts are UTF-8 without line breaks; `tracking`
/// is what the view asked for, in points after every glyph; the face's own is added by the engine.
/// Used by one thread at a time.
class TextMeasurer {
  public:
    virtual ~TextMeasurer() = default;
    /// Advance of the text set on one line, in points, tracking after the last glyph included.
    virtual double width(std::string_view text, const Font& font, double tracking) const = 0;
    /// The clusters of the text in logical order.
    virtual std::vector<TextCluster> clusters(std::string_view text,
                                              const Font& font,
                                              double tracking) const = 0;
};

}  // namespace views

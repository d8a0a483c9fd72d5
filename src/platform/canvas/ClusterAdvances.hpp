#pragma once

#include "platform/canvas/DrawableText.hpp"
#include "platform/views/text/TextMeasurer.hpp"

#include <cstddef>
#include <vector>

namespace canvas {

/// Shares out the advances of glyphs among the user-perceived characters of a text. The text must
/// outlive it.
class ClusterAdvances {
  public:
    explicit ClusterAdvances(const DrawableText& text) : text_(text), advances_(text.utf8.size()) {}

    /// Adds what a glyph takes for the characters from this byte of the drawable text on.
    void add(std::size_t at, double advance);

    /// The characters; a glyph that stands for several is shared equally. Their ends are offsets in
    /// the text the drawable one was made from, the last one its end.
    std::vector<views::TextCluster> clusters() const;

  private:
    const DrawableText& text_;
    std::vector<double> advances_;     // by the byte at which a glyph's characters begin
    std::vector<std::size_t> begins_;  // where glyphs' characters begin
};

}  // namespace canvas

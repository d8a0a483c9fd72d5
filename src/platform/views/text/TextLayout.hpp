#pragma once

#include "platform/views/text/TextMeasurer.hpp"

#include <cstddef>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

namespace views {

inline constexpr std::size_t anyNumberOfLines = std::numeric_limits<std::size_t>::max();

/// Bytes of a text that are ever looked at; no card shows more, and a text cut there ends in "…".
inline constexpr std::size_t longestText = 4096;

/// A text on its lines.
struct TextLayout {
    std::vector<std::string> lines;
    double width = 0;  // points, of the widest line, without the white space it was broken at
};

/// Sets a text in lines no wider than `maxWidth` points (infinity: as wide as it is) and no more
/// than `maxLines`, at least one. Lines break between words, inside a word only where it alone does
/// not fit; what is left over is cut with "…" at the end of the last line. Where not even that
/// fits, and where nothing is offered, a line is empty.
TextLayout layOut(std::string_view text,
                  const Font& font,
                  double tracking,
                  double maxWidth,
                  std::size_t maxLines,
                  const TextMeasurer& measurer);

}  // namespace views

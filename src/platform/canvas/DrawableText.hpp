#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace canvas {

/// A text as it can be handed to a text engine: valid UTF-8 without control characters, and where
/// each of its bytes comes from.
struct DrawableText {
    std::string utf8;
    std::vector<std::size_t> origins;  // one per byte of utf8, and one more for the end
};

/// Bytes that are no UTF-8 become U+FFFD each; control characters and line separators are left out.
/// Of a longer text only whole characters within `longest` bytes are taken.
DrawableText drawableText(std::string_view text, std::size_t longest);

}  // namespace canvas

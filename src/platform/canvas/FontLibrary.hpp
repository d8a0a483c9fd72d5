#pragma once

#include "platform/views/text/Font.hpp"

#include <cstddef>
#include <memory>
#include <string_view>

namespace canvas {

struct TextLine;

/// Sets texts in the stand-ins of the system faces. Fonts are opened when a text first needs them;
/// the system's own font configuration only when a character is in none of the stand-ins, or a
/// stand-in is not installed. Lines are kept, so that a text is set once for measuring and drawing.
/// Used by one thread at a time.
class FontLibrary {
  public:
    FontLibrary();
    ~FontLibrary();
    FontLibrary(const FontLibrary&) = delete;
    FontLibrary& operator=(const FontLibrary&) = delete;

    /// Of a longer text only this many bytes are set; they are wider than any card.
    static constexpr std::size_t longestText = 8192;

    /// The text on one line. Bytes that are no UTF-8 show as U+FFFD, control characters as nothing.
    std::shared_ptr<const TextLine> line(std::string_view text,
                                         const views::Font& font,
                                         double tracking);

  private:
    struct Contents;
    std::unique_ptr<Contents> contents_;
};

}  // namespace canvas

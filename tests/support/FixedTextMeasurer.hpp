#pragma once

#include "platform/views/text/TextMeasurer.hpp"

#include <unicode/utf8.h>

#include <cstdint>

namespace support {

/// A text engine without fonts: every character is as wide as every other, in proportion to the
/// font's size, with the tracking after each. Marks that combine belong to the character before.
class FixedTextMeasurer : public views::TextMeasurer {
  public:
    explicit FixedTextMeasurer(double advance = 0.5) : advance_(advance) {}

    double width(std::string_view text, const views::Font& font, double tracking) const override {
        double width = 0;
        for (const views::TextCluster& cluster : clusters(text, font, tracking))
            width += cluster.advance;
        return width;
    }

    std::vector<views::TextCluster> clusters(std::string_view text,
                                             const views::Font& font,
                                             double tracking) const override {
        std::vector<views::TextCluster> clusters;
        const auto length = static_cast<std::int32_t>(text.size());
        for (std::int32_t at = 0; at < length;) {
            UChar32 character = 0;
            U8_NEXT(reinterpret_cast<const std::uint8_t*>(text.data()), at, length, character);
            if (clusters.empty() || !combines(character))
                clusters.push_back({.advance = advance_ * font.size + tracking});
            clusters.back().end = static_cast<std::size_t>(at);
        }
        return clusters;
    }

  private:
    static bool combines(UChar32 character) { return character >= 0x300 && character < 0x370; }

    double advance_;  // em
};

}  // namespace support

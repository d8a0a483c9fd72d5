#pragma once

#include "platform/canvas/FontLibrary.hpp"
#include "platform/views/text/TextMeasurer.hpp"

namespace canvas {

/// Measures texts as they are drawn: unhinted, so that widths are the same at every scale. The
/// library must outlive it.
class PangoTextMeasurer final : public views::TextMeasurer {
  public:
    explicit PangoTextMeasurer(FontLibrary& fonts) : fonts_(fonts) {}

    double width(std::string_view text, const views::Font& font, double tracking) const override;
    std::vector<views::TextCluster> clusters(std::string_view text,
                                             const views::Font& font,
                                             double tracking) const override;

  private:
    FontLibrary& fonts_;
};

}  // namespace canvas

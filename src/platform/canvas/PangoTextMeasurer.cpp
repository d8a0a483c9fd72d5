#include "platform/canvas/PangoTextMeasurer.hpp"

#include "platform/canvas/TextLine.hpp"

namespace canvas {

double PangoTextMeasurer::width(std::string_view text,
                                const views::Font& font,
                                double tracking) const {
    return fonts_.line(text, font, tracking)->width;
}

std::vector<views::TextCluster> PangoTextMeasurer::clusters(std::string_view text,
                                                            const views::Font& font,
                                                            double tracking) const {
    return fonts_.line(text, font, tracking)->clusters;
}

}  // namespace canvas

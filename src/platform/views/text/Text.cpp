#include "platform/views/text/Text.hpp"

#include "platform/foundation/LocalizedString.hpp"
#include "platform/views/layout/LayoutContext.hpp"
#include "platform/views/scene/Recorder.hpp"
#include "platform/views/view/BuildEnvironment.hpp"

#include <algorithm>
#include <cmath>
#include <utility>

namespace views {

namespace {

/// How many lines of a height stand in what is offered; one stands everywhere.
std::size_t linesWithin(std::optional<double> offer, double lineHeight) {
    // No text has more lines than characters, but for the line behind a break at its end.
    constexpr double mostLines = longestText + 1;
    if (!offer || *offer >= mostLines * lineHeight)
        return anyNumberOfLines;
    const double fitting = std::floor((*offer + roundingError) / lineHeight);
    return static_cast<std::size_t>(std::max(fitting, 1.0));
}

}  // namespace

Text::Text(std::string verbatim) : text_(std::move(verbatim)) {}

Text Text::localized(std::string_view key,
                     const std::vector<foundation::FormatArgument>& arguments) {
    const foundation::Environment& environment = buildEnvironment();
    return Text(
        foundation::localizedString(key, environment.mainBundle, environment.locale, arguments));
}

Text Text::font(const Font& font) const {
    Text copy = *this;
    copy.font_ = font;
    return copy;
}

Text Text::foregroundStyle(const Color& color) const {
    Text copy = *this;
    copy.color_ = color;
    return copy;
}

Text Text::tracking(double points) const {
    Text copy = *this;
    copy.tracking_ = points;
    return copy;
}

Text Text::lineLimit(std::size_t lines) const {
    Text copy = *this;
    copy.lineLimit_ = lines;
    return copy;
}

const TextLayout& Text::laidOut(const Proposal& proposal, LayoutContext& context) const {
    const double width = proposal.width.value_or(infinity);
    const std::size_t lines =
        std::min(lineLimit_, linesWithin(proposal.height, font_.lineHeight()));
    if (const TextLayout* known = context.remembered(this, width, lines))
        return *known;
    return context.remember(this, width, lines,
                            layOut(text_, font_, tracking_, width, lines, context.text));
}

Size Text::sizeThatFits(const Proposal& proposal, LayoutContext& context) const {
    const TextLayout& layout = laidOut(proposal, context);
    const double width = context.roundedUpToPixel(layout.width);
    return {std::min(width, proposal.width.value_or(infinity)),
            static_cast<double>(layout.lines.size()) * font_.lineHeight()};
}

double Text::firstBaseline(const Proposal&, LayoutContext&) const {
    return font_.baseline();
}

void Text::draw(const Placement& place, LayoutContext& context, Recorder& recorder) const {
    recorder.draw(DrawText{place.frame, text_, laidOut(place.proposal, context).lines, font_,
                           tracking_, color_});
}

}  // namespace views

#include "platform/views/text/Text.hpp"

#include "platform/foundation/localization/LocalizedString.hpp"
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
                     std::initializer_list<foundation::FormatArgument> arguments) {
    const foundation::Environment& environment = buildEnvironment();
    return Text(
        foundation::localizedString(key, environment.mainBundle, environment.locale, arguments));
}

Text Text::tracking(double points) && {
    tracking_ = points;
    return std::move(*this);
}

Text Text::lineLimit(std::size_t lines) && {
    lineLimit_ = lines;
    return std::move(*this);
}

const TextLayout* Text::wholeWithin(double width, LayoutContext& context) const {
    const TextLayout& ideal = laidOut(infinity, 1, context);
    const bool fits = width > 0 && ideal.width <= width + roundingError;
    return fits && ideal.lines.front() == text_ ? &ideal : nullptr;
}

const TextLayout& Text::laidOut(const Proposal& proposal, LayoutContext& context) const {
    const double width = proposal.width.value_or(infinity);
    if (const TextLayout* whole = wholeWithin(width, context))
        return *whole;
    const std::size_t lines =
        lineLimit_ == 1 ? 1
                        : std::min(lineLimit_, linesWithin(proposal.height, font_.lineHeight()));
    return laidOut(width, lines, context);
}

const TextLayout& Text::laidOut(double width, std::size_t lines, LayoutContext& context) const {
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

std::optional<double> Text::fixedLength(Axis axis,
                                        std::optional<double> acrossOffer,
                                        LayoutContext& context) const {
    const bool hasOneLine =
        lineLimit_ == 1 || (acrossOffer && wholeWithin(*acrossOffer, context) != nullptr);
    if (axis == Axis::vertical && hasOneLine)
        return font_.lineHeight();
    return std::nullopt;
}

double Text::firstBaseline(const Proposal&, LayoutContext&) const {
    return font_.baseline();
}

void Text::draw(const Placement& place, LayoutContext& context, Recorder& recorder) const {
    recorder.draw(DrawText{place.frame, text_, laidOut(place.proposal, context).lines, font_,
                           tracking_, color_});
}

}  // namespace views

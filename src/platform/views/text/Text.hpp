#pragma once

#include "platform/foundation/localization/FormatArgument.hpp"
#include "platform/views/text/Lettering.hpp"
#include "platform/views/text/TextLayout.hpp"
#include "platform/views/view/View.hpp"

#include <cstddef>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>

namespace views {

/// A text on as many lines as it needs and is given. Leading-aligned; its frame hugs the widest
/// line.
class Text : public Lettering<Text> {
  public:
    /// The text shown verbatim.
    explicit Text(std::string verbatim);
    /// The user's text for a key in the main bundle's table, in the language of the system.
    static Text localized(std::string_view key,
                          std::initializer_list<foundation::FormatArgument> arguments = {});

    /// Points added after every glyph.
    Text tracking(double points) const& { return Text(*this).tracking(points); }
    Text tracking(double points) &&;
    /// At most so many lines; at least 1.
    Text lineLimit(std::size_t lines) const& { return Text(*this).lineLimit(lines); }
    Text lineLimit(std::size_t lines) &&;

    Size sizeThatFits(const Proposal& proposal, LayoutContext& context) const;
    std::optional<double> fixedLength(Axis axis,
                                      std::optional<double> acrossOffer,
                                      LayoutContext& context) const;
    double firstBaseline(const Proposal& proposal, LayoutContext& context) const;
    void draw(const Placement& place, LayoutContext& context, Recorder& recorder) const;

  private:
    /// The text whole on one line, where it has no break and stands within the width.
    const TextLayout* wholeWithin(double width, LayoutContext& context) const;
    const TextLayout& laidOut(const Proposal& proposal, LayoutContext& context) const;
    const TextLayout& laidOut(double width, std::size_t lines, LayoutContext& context) const;

    std::string text_;
    double tracking_ = 0;
    std::size_t lineLimit_ = anyNumberOfLines;
};

}  // namespace views

#pragma once

#include "platform/foundation/FormatArgument.hpp"
#include "platform/views/geometry/Color.hpp"
#include "platform/views/text/TextLayout.hpp"
#include "platform/views/view/View.hpp"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace views {

/// A text on as many lines as it needs and is given. Leading-aligned; its frame hugs the widest
/// line.
class Text : public Modifiers<Text> {
  public:
    /// The text shown verbatim.
    explicit Text(std::string verbatim);
    /// The user's text for a key in the main bundle's table, in the language of the system.
    static Text localized(std::string_view key,
                          const std::vector<foundation::FormatArgument>& arguments = {});

    Text font(const Font& font) const;
    Text foregroundStyle(const Color& color) const;
    /// Points added after every glyph.
    Text tracking(double points) const;
    /// At most so many lines; at least 1.
    Text lineLimit(std::size_t lines) const;

    Size sizeThatFits(const Proposal& proposal, LayoutContext& context) const;
    double firstBaseline(const Proposal& proposal, LayoutContext& context) const;
    void draw(const Placement& place, LayoutContext& context, Recorder& recorder) const;

  private:
    const TextLayout& laidOut(const Proposal& proposal, LayoutContext& context) const;

    std::string text_;
    Font font_;
    Color color_;
    double tracking_ = 0;
    std::size_t lineLimit_ = anyNumberOfLines;
};

}  // namespace views

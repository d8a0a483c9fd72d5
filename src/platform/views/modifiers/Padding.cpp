#include "platform/views/modifiers/Padding.hpp"

#include "platform/views/modifiers/Modified.hpp"

#include <algorithm>
#include <optional>

namespace views {

namespace {

struct Insets {
    double top = 0;
    double leading = 0;
    double bottom = 0;
    double trailing = 0;
};

Insets insets(Edge edges, double length) {
    switch (edges) {
        case Edge::top:
            return {.top = length};
        case Edge::horizontal:
            return {.leading = length, .trailing = length};
        case Edge::vertical:
            return {.top = length, .bottom = length};
    }
    return {};
}

std::optional<double> lessened(std::optional<double> offer, double by) {
    return offer ? std::optional(std::max(*offer - by, 0.0)) : offer;
}

class PaddedView {
  public:
    PaddedView(View inner, const Insets& insets) : inner_(std::move(inner)), insets_(insets) {}

    Size sizeThatFits(const Proposal& proposal, LayoutContext& context) const {
        const Size inner = inner_.sizeThatFits(offer(proposal), context);
        return {inner.width + insets_.leading + insets_.trailing,
                inner.height + insets_.top + insets_.bottom};
    }

    void draw(const Placement& place, LayoutContext& context, Recorder& recorder) const {
        const Rect frame{place.frame.x + insets_.leading, place.frame.y + insets_.top,
                         place.frame.width - insets_.leading - insets_.trailing,
                         place.frame.height - insets_.top - insets_.bottom};
        inner_.draw({frame, offer(place.proposal)}, context, recorder);
    }

    double firstBaseline(const Proposal& proposal, LayoutContext& context) const {
        return insets_.top + inner_.firstBaseline(offer(proposal), context);
    }

  private:
    Proposal offer(const Proposal& proposal) const {
        return {lessened(proposal.width, insets_.leading + insets_.trailing),
                lessened(proposal.height, insets_.top + insets_.bottom)};
    }

    View inner_;
    Insets insets_;
};

}  // namespace

View padded(const View& view, Edge edges, double length) {
    return modified(view,
                    [&](const View& inner) { return PaddedView(inner, insets(edges, length)); });
}

}  // namespace views

#include "platform/views/modifiers/Frame.hpp"

#include "platform/views/modifiers/Modified.hpp"
#include "platform/views/stacks/Layers.hpp"

#include <algorithm>
#include <optional>

namespace views {

namespace {

using Length = std::optional<double>;

/// The offer kept between the bounds that are given.
Length bounded(Length offer, Length least, Length most) {
    if (!offer)
        return offer;
    return std::max(std::min(*offer, most.value_or(infinity)), least.value_or(-infinity));
}

/// The length of a flexible frame on one axis, around a child that took `child` of `offer`.
double flexibleLength(Length offer, double child, Length least, Length most) {
    const double wanted = bounded(child, least, most).value_or(child);
    if (!offer || (!least && !most))
        return wanted;
    const double bound = *bounded(offer, least, most);
    if (least && most)
        return bound;
    return most ? std::min(std::max(bound, child), *most)
                : std::max(std::min(bound, child), *least);
}

class FixedFrameView {
  public:
    FixedFrameView(View inner, const FixedFrame& frame) : inner_(std::move(inner)), frame_(frame) {}

    Size sizeThatFits(const Proposal& proposal, LayoutContext& context) const {
        if (frame_.width && frame_.height)
            return {*frame_.width, *frame_.height};
        const Size inner = inner_.sizeThatFits(offer(proposal), context);
        return {frame_.width.value_or(inner.width), frame_.height.value_or(inner.height)};
    }

    void draw(const Placement& place, LayoutContext& context, Recorder& recorder) const {
        inner_.draw(placed(place.frame, place.proposal, context), context, recorder);
    }

    double firstBaseline(const Proposal& proposal, LayoutContext& context) const {
        const Size size = sizeThatFits(proposal, context);
        const Placement inner = placed({0, 0, size.width, size.height}, proposal, context);
        return inner.frame.y + inner_.firstBaseline(inner.proposal, context);
    }

  private:
    Proposal offer(const Proposal& proposal) const {
        return {frame_.width ? frame_.width : proposal.width,
                frame_.height ? frame_.height : proposal.height};
    }
    Placement placed(const Rect& frame, const Proposal& proposal, LayoutContext& context) const {
        return aligned(inner_, offer(proposal), frame_.alignment, frame, context);
    }

    View inner_;
    FixedFrame frame_;
};

class FlexibleFrameView {
  public:
    FlexibleFrameView(View inner, const FlexibleFrame& frame)
        : inner_(std::move(inner)), frame_(frame) {}

    Size sizeThatFits(const Proposal& proposal, LayoutContext& context) const {
        const Size inner = inner_.sizeThatFits(offer(proposal), context);
        return {flexibleLength(proposal.width, inner.width, frame_.minWidth, frame_.maxWidth),
                flexibleLength(proposal.height, inner.height, frame_.minHeight, frame_.maxHeight)};
    }

    void draw(const Placement& place, LayoutContext& context, Recorder& recorder) const {
        inner_.draw(placed(place.frame, place.proposal, context), context, recorder);
    }

    double firstBaseline(const Proposal& proposal, LayoutContext& context) const {
        const Size size = sizeThatFits(proposal, context);
        const Placement inner = placed({0, 0, size.width, size.height}, proposal, context);
        return inner.frame.y + inner_.firstBaseline(inner.proposal, context);
    }

  private:
    Proposal offer(const Proposal& proposal) const {
        return {bounded(proposal.width, frame_.minWidth, frame_.maxWidth),
                bounded(proposal.height, frame_.minHeight, frame_.maxHeight)};
    }
    Placement placed(const Rect& frame, const Proposal& proposal, LayoutContext& context) const {
        return aligned(inner_, offer(proposal), frame_.alignment, frame, context);
    }

    View inner_;
    FlexibleFrame frame_;
};

}  // namespace

View framed(const View& view, const FixedFrame& frame) {
    return modified(view, [&](const View& inner) { return FixedFrameView(inner, frame); });
}

View framed(const View& view, const FlexibleFrame& frame) {
    return modified(view, [&](const View& inner) { return FlexibleFrameView(inner, frame); });
}

}  // namespace views

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

Proposal offered(const FixedFrame& frame, const Proposal& proposal) {
    return {frame.width ? frame.width : proposal.width,
            frame.height ? frame.height : proposal.height};
}

Size sizeAround(const View& inner,
                const FixedFrame& frame,
                const Proposal& proposal,
                LayoutContext& context) {
    if (frame.width && frame.height)
        return {*frame.width, *frame.height};
    if (frame.width)
        if (const Length height = inner.node().fixedLength(Axis::vertical, frame.width, context))
            return {*frame.width, *height};
    const Size size = inner.sizeThatFits(offered(frame, proposal), context);
    return {frame.width.value_or(size.width), frame.height.value_or(size.height)};
}

Length fixedLengthAround(const View& inner,
                         const FixedFrame& frame,
                         Axis axis,
                         Length acrossOffer,
                         LayoutContext& context) {
    const bool isHorizontal = axis == Axis::horizontal;
    const Length own = isHorizontal ? frame.width : frame.height;
    const Length other = isHorizontal ? frame.height : frame.width;
    return own ? own : inner.node().fixedLength(axis, other ? other : acrossOffer, context);
}

Proposal offered(const FlexibleFrame& frame, const Proposal& proposal) {
    return {bounded(proposal.width, frame.minWidth, frame.maxWidth),
            bounded(proposal.height, frame.minHeight, frame.maxHeight)};
}

Size sizeAround(const View& inner,
                const FlexibleFrame& frame,
                const Proposal& proposal,
                LayoutContext& context) {
    const Size size = inner.sizeThatFits(offered(frame, proposal), context);
    return {flexibleLength(proposal.width, size.width, frame.minWidth, frame.maxWidth),
            flexibleLength(proposal.height, size.height, frame.minHeight, frame.maxHeight)};
}

Length fixedLengthAround(const View&, const FlexibleFrame&, Axis, Length, LayoutContext&) {
    return std::nullopt;
}

/// A view in a frame of either kind, aligned in it.
template <class Frame>
class FramedView {
  public:
    FramedView(View inner, const Frame& frame) : inner_(std::move(inner)), frame_(frame) {}

    Size sizeThatFits(const Proposal& proposal, LayoutContext& context) const {
        return sizeAround(inner_, frame_, proposal, context);
    }

    void draw(const Placement& place, LayoutContext& context, Recorder& recorder) const {
        inner_.draw(placed(place.frame, place.proposal, context), context, recorder);
    }

    Length fixedLength(Axis axis, Length acrossOffer, LayoutContext& context) const {
        return fixedLengthAround(inner_, frame_, axis, acrossOffer, context);
    }

    double firstBaseline(const Proposal& proposal, LayoutContext& context) const {
        const Size size = sizeThatFits(proposal, context);
        const Placement inner = placed({0, 0, size.width, size.height}, proposal, context);
        return inner.frame.y + inner_.firstBaseline(inner.proposal, context);
    }

  private:
    Placement placed(const Rect& frame, const Proposal& proposal, LayoutContext& context) const {
        return aligned(inner_, offered(frame_, proposal), frame_.alignment, frame, context);
    }

    View inner_;
    Frame frame_;
};

}  // namespace

View framed(const View& view, const FixedFrame& frame) {
    return modified(view, [&](const View& inner) { return FramedView(inner, frame); });
}

View framed(const View& view, const FlexibleFrame& frame) {
    return modified(view, [&](const View& inner) { return FramedView(inner, frame); });
}

}  // namespace views

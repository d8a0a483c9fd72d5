#include "platform/views/stacks/LinearStack.hpp"

#include "platform/views/layout/LayoutContext.hpp"
#include "platform/views/scene/Recorder.hpp"

#include <algorithm>
#include <optional>
#include <utility>

namespace views {

namespace {

std::optional<double>& along(Axis axis, Proposal& proposal) {
    return axis == Axis::horizontal ? proposal.width : proposal.height;
}

double& along(Axis axis, Size& size) {
    return axis == Axis::horizontal ? size.width : size.height;
}

Proposal offering(Axis axis, std::optional<double> length, const Proposal& proposal) {
    return axis == Axis::horizontal ? Proposal{length, proposal.height}
                                    : Proposal{proposal.width, length};
}

}  // namespace

LinearStack::LinearStack(Axis axis, Alignment alignment, double spacing, Views children)
    : axis_(axis), alignment_(alignment), spacing_(spacing), children_(std::move(children)) {}

Size LinearStack::sizeThatFits(const Proposal& proposal, LayoutContext& context) const {
    return laidOut(proposal, context).size;
}

std::optional<double> LinearStack::fixedLength(Axis axis,
                                               std::optional<double>,
                                               LayoutContext& context) const {
    const bool onBaseline =
        axis_ == Axis::horizontal && alignment_.vertical == VerticalAlignment::firstTextBaseline;
    if (axis == axis_ || onBaseline)
        return std::nullopt;
    // Across the axis it is as large as its largest child, however its own length is shared.
    double largest = 0;
    for (const View& child : children_) {
        if (child.node().spacerLength())
            continue;
        const auto length = child.node().fixedLength(axis, std::nullopt, context);
        if (!length)
            return std::nullopt;
        largest = std::max(largest, *length);
    }
    return largest;
}

void LinearStack::draw(const Placement& place, LayoutContext& context, Recorder& recorder) const {
    // Children that take what they are offered across share the stack's own size where it was left
    // open.
    Proposal proposal = place.proposal;
    auto& acrossOffer = along(across(axis_), proposal);
    if (!acrossOffer) {
        Size size = place.frame.size();
        acrossOffer = along(across(axis_), size);
    }
    const StackLayout& layout = laidOut(proposal, context);
    for (std::size_t i = 0; i < children_.size(); ++i) {
        const Placement& child = layout.children[i];
        const Rect frame = child.frame.movedBy(place.frame.x, place.frame.y);
        if (!recorder.isOutOfReach(frame))
            children_[i].draw({frame, child.proposal}, context, recorder);
    }
}

double LinearStack::firstBaseline(const Proposal& proposal, LayoutContext& context) const {
    const StackLayout& layout = laidOut(proposal, context);
    std::optional<double> topmost;
    for (std::size_t i = 0; i < children_.size(); ++i) {
        if (children_[i].node().spacerLength())
            continue;
        const Placement& child = layout.children[i];
        const double baseline = child.frame.y + children_[i].firstBaseline(child.proposal, context);
        topmost = std::min(topmost.value_or(baseline), baseline);
    }
    return topmost.value_or(layout.size.height);
}

const StackLayout& LinearStack::laidOut(const Proposal& proposal, LayoutContext& context) const {
    // Views are immutable, so all through a pass the same offer is laid out in the same way.
    if (const StackLayout* known = context.remembered(this, proposal))
        return *known;
    return context.remember(this, proposal, layOut(proposal, context));
}

StackLayout LinearStack::layOut(const Proposal& proposal, LayoutContext& context) const {
    StackLayout layout{.children = std::pmr::vector<Placement>(children_.size(), context.memory())};
    const auto take = [&](std::size_t index, std::optional<double> length) {
        const Proposal offer = offering(axis_, length, proposal);
        Size size = measured(children_[index], offer, context);
        layout.children[index] = {{0, 0, size.width, size.height}, offer};
        return along(axis_, size);
    };

    Proposal offered = proposal;
    if (const auto length = along(axis_, offered)) {
        const double gaps = spacing_ * (static_cast<double>(children_.size()) - 1);
        shareLength(*length - gaps, flexibilities(proposal, context), take, context.memory());
    } else {
        for (std::size_t i = 0; i < children_.size(); ++i)
            take(i, std::nullopt);
    }

    along(axis_, layout.size) = spread(layout.children);
    const bool onBaseline =
        axis_ == Axis::horizontal && alignment_.vertical == VerticalAlignment::firstTextBaseline;
    along(across(axis_), layout.size) =
        onBaseline ? alignOnBaseline(layout.children, context) : align(layout.children);
    return layout;
}

Size LinearStack::measured(const View& child, const Proposal& offer, LayoutContext& context) const {
    const auto least = child.node().spacerLength();
    if (!least)
        return child.sizeThatFits(offer, context);
    Proposal offered = offer;
    Size size;
    along(axis_, size) = std::max(along(axis_, offered).value_or(0), *least);
    return size;
}

std::pmr::vector<Flexibility> LinearStack::flexibilities(const Proposal& proposal,
                                                         LayoutContext& context) const {
    std::pmr::vector<Flexibility> answers(context.memory());
    answers.reserve(children_.size());
    Proposal offered = proposal;
    const auto acrossOffer = along(across(axis_), offered);
    for (const View& child : children_) {
        // Such a child would answer both questions alike.
        if (const auto length = child.node().fixedLength(axis_, acrossOffer, context)) {
            answers.push_back({*length, *length});
            continue;
        }
        Size shortest = measured(child, offering(axis_, 0, proposal), context);
        Size longest = measured(child, offering(axis_, infinity, proposal), context);
        answers.push_back({along(axis_, shortest), along(axis_, longest),
                           child.node().spacerLength().has_value()});
    }
    return answers;
}

double LinearStack::spread(std::span<Placement> children) const {
    double end = 0;
    double gap = 0;
    for (Placement& child : children) {
        end += gap;
        gap = spacing_;
        Size size = child.frame.size();
        (axis_ == Axis::horizontal ? child.frame.x : child.frame.y) = end;
        end += along(axis_, size);
    }
    return end;
}

double LinearStack::align(std::span<Placement> children) const {
    double widest = 0;
    for (const Placement& child : children) {
        Size size = child.frame.size();
        widest = std::max(widest, along(across(axis_), size));
    }
    for (Placement& child : children) {
        if (axis_ == Axis::horizontal)
            child.frame.y = alignedOffset(alignment_.vertical, widest, child.frame.height);
        else
            child.frame.x = alignedOffset(alignment_.horizontal, widest, child.frame.width);
    }
    return widest;
}

double LinearStack::alignOnBaseline(std::span<Placement> children, LayoutContext& context) const {
    std::pmr::vector<double> baselines(context.memory());
    double above = 0;
    double below = 0;
    for (std::size_t i = 0; i < children.size(); ++i) {
        // A spacer takes nothing across, so it stands on its own top.
        const bool isSpacer = children_[i].node().spacerLength().has_value();
        const double baseline =
            isSpacer ? 0 : children_[i].firstBaseline(children[i].proposal, context);
        above = std::max(above, baseline);
        below = std::max(below, roomLeft(children[i].frame.height, baseline));
        baselines.push_back(baseline);
    }
    for (std::size_t i = 0; i < children.size(); ++i)
        children[i].frame.y = roomLeft(above, baselines[i]);
    return above + below;
}

}  // namespace views

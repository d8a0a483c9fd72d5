#include "platform/views/trees/ExpectedLayout.hpp"

#include "platform/views/trees/ExpectedStack.hpp"

#include <algorithm>
#include <cmath>

namespace views {

namespace {

using Kind = Tree::Kind;
using Length = std::optional<double>;

Proposal frameOffer(const Tree& tree, const Proposal& offer) {
    if (tree.kind == Kind::fixedFrame)
        return {tree.fixedWidth ? tree.fixedWidth : offer.width,
                tree.fixedHeight ? tree.fixedHeight : offer.height};
    const auto bounded = [](Length length, Length least, Length most) {
        if (length && most && *length > *most)
            length = most;
        if (length && least && *length < *least)
            length = least;
        return length;
    };
    return {bounded(offer.width, tree.minWidth, tree.maxWidth),
            bounded(offer.height, tree.minHeight, tree.maxHeight)};
}

double frameLength(Length offer, Length bounded, double child, Length least, Length most) {
    if (least && most)
        return offer ? *bounded : std::clamp(child, *least, *most);
    if (most)
        return offer ? std::min(std::max(*bounded, child), *most) : std::min(child, *most);
    if (least)
        return offer ? std::max(std::min(*bounded, child), *least) : std::max(child, *least);
    return child;
}

Size frameSize(const Tree& tree, const Proposal& offer) {
    const Proposal inner = frameOffer(tree, offer);
    const Size child = expectedSize(tree.children[0], inner);
    if (tree.kind == Kind::fixedFrame)
        return {tree.fixedWidth.value_or(child.width), tree.fixedHeight.value_or(child.height)};
    return {frameLength(offer.width, inner.width, child.width, tree.minWidth, tree.maxWidth),
            frameLength(offer.height, inner.height, child.height, tree.minHeight, tree.maxHeight)};
}

/// What a modifier offers its view.
Proposal innerOffer(const Tree& tree, Proposal offer) {
    if (tree.kind == Kind::fixedFrame || tree.kind == Kind::flexibleFrame)
        return frameOffer(tree, offer);
    if (tree.kind == Kind::padding) {
        if (offer.width)
            offer.width = std::max(*offer.width - 4 * tree.spacing, 0.0);
        if (offer.height)
            offer.height = std::max(*offer.height - tree.spacing, 0.0);
    }
    if (tree.kind == Kind::fixedSize) {
        if (tree.fixedWidth)
            offer.width = std::nullopt;
        if (tree.fixedHeight)
            offer.height = std::nullopt;
    }
    return offer;
}

/// Where a modifier puts its view.
Rect innerFrame(const Tree& tree, const Placement& place) {
    const Rect& frame = place.frame;
    switch (tree.kind) {
        case Kind::fixedFrame:
        case Kind::flexibleFrame:
            return expectedPlace(tree.children[0], innerOffer(tree, place.proposal), tree.alignment,
                                 frame)
                .frame;
        case Kind::padding:
            return {frame.x + 2 * tree.spacing, frame.y + tree.spacing,
                    frame.width - 4 * tree.spacing, frame.height - tree.spacing};
        case Kind::offset:
            return {frame.x + tree.spacing, frame.y - tree.spacing, frame.width, frame.height};
        default:
            return frame;
    }
}

/// A part of what a child leaves of its container, though both be endless.
double part(double factor, double container, double child) {
    return factor == 0 || container == child ? 0 : factor * (container - child);
}

bool isStack(const Tree& tree) {
    return tree.kind == Kind::hstack || tree.kind == Kind::vstack || tree.kind == Kind::zstack;
}

bool isLeaf(const Tree& tree) {
    return tree.kind == Kind::leaf || tree.kind == Kind::wrapping;
}

}  // namespace

Placement expectedPlace(const Tree& tree,
                        const Proposal& offer,
                        Alignment alignment,
                        const Rect& frame) {
    const Size size = expectedSize(tree, offer);
    const double x = alignment.horizontal == HorizontalAlignment::leading    ? 0
                     : alignment.horizontal == HorizontalAlignment::trailing ? 1
                                                                             : 0.5;
    const double y = alignment.vertical == VerticalAlignment::bottom   ? 1
                     : alignment.vertical == VerticalAlignment::center ? 0.5
                                                                       : 0;
    return {{frame.x + part(x, frame.width, size.width),
             frame.y + part(y, frame.height, size.height), size.width, size.height},
            offer};
}

Size expectedSize(const Tree& tree, const Proposal& offer) {
    if (isStack(tree))
        return expectedStackSize(tree, offer);
    switch (tree.kind) {
        case Kind::leaf:
            return {tree.width.within(offer.width), tree.height.within(offer.height)};
        case Kind::wrapping: {
            const double width = std::min(offer.width.value_or(tree.width.ideal), tree.width.ideal);
            return {width, wrappedHeight(tree.width.ideal, width)};
        }
        case Kind::fixedFrame:
        case Kind::flexibleFrame:
            return frameSize(tree, offer);
        case Kind::padding: {
            const Size inner = expectedSize(tree.children[0], innerOffer(tree, offer));
            return {inner.width + 4 * tree.spacing, inner.height + tree.spacing};
        }
        default:
            return expectedSize(tree.children[0], innerOffer(tree, offer));
    }
}

double expectedBaseline(const Tree& tree, const Proposal& offer) {
    if (isStack(tree))
        return expectedStackBaseline(tree, offer);
    const Size size = expectedSize(tree, offer);
    if (isLeaf(tree))
        return tree.kind == Kind::leaf ? tree.baseline.value_or(size.height) : size.height;
    if (tree.kind == Kind::offset)
        return expectedBaseline(tree.children[0], offer);
    const Rect inner = innerFrame(tree, {{0, 0, size.width, size.height}, offer});
    return inner.y + expectedBaseline(tree.children[0], innerOffer(tree, offer));
}

void expectLeaves(const Tree& tree, const Placement& place, Frames& leaves) {
    if (isLeaf(tree)) {
        leaves.push_back(place.frame);
        return;
    }
    if (isStack(tree)) {
        expectStackLeaves(tree, place, leaves);
        return;
    }
    if (tree.kind == Kind::background)
        expectLeaves(
            tree.children[1],
            expectedPlace(tree.children[1], Proposal::exactly(place.frame.size()), {}, place.frame),
            leaves);
    expectLeaves(tree.children[0], {innerFrame(tree, place), innerOffer(tree, place.proposal)},
                 leaves);
}

}  // namespace views

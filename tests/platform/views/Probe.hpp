#pragma once

#include "platform/views/scene/Recorder.hpp"
#include "platform/views/view/View.hpp"

#include <algorithm>
#include <optional>
#include <vector>

namespace views {

using Frames = std::vector<Rect>;

/// The lengths a probe takes: what it is offered between two bounds, its ideal for no offer.
struct Range {
    double least = 0;
    double ideal = 10;
    double most = infinity;

    double within(std::optional<double> offer) const {
        return std::clamp(offer.value_or(ideal), least, most);
    }
    static Range exactly(double length) { return {length, length, length}; }
};

/// A view that notes in `drawn` where it is drawn.
struct Probe : Modifiers<Probe> {
    Range width;
    Range height;
    Frames* drawn = nullptr;
    std::optional<double> baseline;

    Size sizeThatFits(const Proposal& proposal, LayoutContext&) const {
        return {width.within(proposal.width), height.within(proposal.height)};
    }
    double firstBaseline(const Proposal& proposal, LayoutContext&) const {
        return baseline.value_or(height.within(proposal.height));
    }
    void draw(const Placement& place, LayoutContext&, Recorder&) const {
        drawn->push_back(place.frame);
    }
};

inline Probe rigid(double width, double height, Frames& drawn) {
    return {.width = Range::exactly(width), .height = Range::exactly(height), .drawn = &drawn};
}

/// Takes whatever it is offered.
inline Probe greedy(Frames& drawn) {
    return {.drawn = &drawn};
}

/// The view, noting the frame it is given. The frame is noted before those of the view's own parts.
inline View traced(const View& view, Frames& drawn) {
    return view.background(greedy(drawn));
}

}  // namespace views

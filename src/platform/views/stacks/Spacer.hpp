#pragma once

#include "platform/views/view/View.hpp"

#include <algorithm>

namespace views {

/// Room that takes what the other children of a stack leave, at least `minLength` points of it.
struct Spacer : Modifiers<Spacer> {
    double minLength = 0;

    double spacerLength() const { return minLength; }
    /// Outside a stack a spacer has no axis and takes what it is offered.
    Size sizeThatFits(const Proposal& proposal, LayoutContext&) const {
        return {std::max(proposal.width.value_or(minLength), minLength),
                std::max(proposal.height.value_or(minLength), minLength)};
    }
    void draw(const Placement&, LayoutContext&, Recorder&) const {}
};

}  // namespace views

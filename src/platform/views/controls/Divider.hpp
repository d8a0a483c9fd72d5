#pragma once

#include "platform/views/view/View.hpp"

namespace views {

/// A thin line across what it is offered.
struct Divider : Modifiers<Divider> {
    Size sizeThatFits(const Proposal& proposal, LayoutContext& context) const;
    void draw(const Placement& place, LayoutContext& context, Recorder& recorder) const;
};

}  // namespace views

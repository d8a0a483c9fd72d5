#pragma once

#include "platform/views/trees/ExpectedLayout.hpp"

namespace views {

// The same for the three kinds of stacks.

Size expectedStackSize(const Tree& stack, const Proposal& offer);

double expectedStackBaseline(const Tree& stack, const Proposal& offer);

void expectStackLeaves(const Tree& stack, const Placement& place, Frames& leaves);

/// Where a tree stands in a frame, for an offer.
Placement expectedPlace(const Tree& tree,
                        const Proposal& offer,
                        Alignment alignment,
                        const Rect& frame);

}  // namespace views

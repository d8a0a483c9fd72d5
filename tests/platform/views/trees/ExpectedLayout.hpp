#pragma once

#include "platform/views/trees/Tree.hpp"

namespace views {

// What the layout rules say of a tree, worked out in the plainest way: nothing is kept, every
// question goes down to the leaves again.

Size expectedSize(const Tree& tree, const Proposal& offer);

double expectedBaseline(const Tree& tree, const Proposal& offer);

/// Adds the frames of the leaves, in drawing order, of a tree that stands at a place.
void expectLeaves(const Tree& tree, const Placement& place, Frames& leaves);

}  // namespace views

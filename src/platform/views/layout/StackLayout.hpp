#pragma once

#include "platform/views/layout/Proposal.hpp"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <memory_resource>
#include <span>
#include <vector>

namespace views {

/// Where a stack's children stand, relative to its top-left corner, and its own size.
struct StackLayout {
    std::pmr::vector<Placement> children;
    Size size;
};

/// How far a child of a stack gives way along the stack, in points.
struct Flexibility {
    double shortest = 0;
    double longest = 0;
    bool isSpacer = false;  // takes what all others leave
};

/// The order in which the children of a stack choose: the least flexible first, of the unlimited
/// ones the longest least length first, spacers last, else as declared.
std::pmr::vector<std::size_t> choosingOrder(
    std::span<const Flexibility> children,
    std::pmr::memory_resource* memory = std::pmr::get_default_resource());

/// Shares `length` among the children of a stack: in choosing order each is offered an equal part
/// of what is left, and `take(index, offer)` answers what it takes. Spacers share what the others
/// leave; the others leave them at least their shortest lengths. `length` is without the gaps
/// between the children and may be infinite; no offer is negative.
template <class Take>
void shareLength(double length,
                 std::span<const Flexibility> children,
                 const Take& take,
                 std::pmr::memory_resource* memory = std::pmr::get_default_resource()) {
    std::size_t spacers = 0;
    double shortestOfSpacers = 0;
    for (const Flexibility& child : children)
        if (child.isSpacer) {
            ++spacers;
            shortestOfSpacers += child.shortest;
        }

    double available = length - shortestOfSpacers;
    std::size_t waiting = children.size() - spacers;
    for (const std::size_t index : choosingOrder(children, memory)) {
        if (waiting == 0) {
            available += shortestOfSpacers;
            waiting = spacers;
        }
        const double taken = take(index, std::max(available / static_cast<double>(waiting), 0.0));
        if (std::isfinite(available))
            available -= taken;
        --waiting;
    }
}

}  // namespace views

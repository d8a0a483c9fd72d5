#pragma once

#include "platform/views/geometry/Geometry.hpp"

#include <limits>
#include <optional>

namespace views {

inline constexpr double infinity = std::numeric_limits<double>::infinity();

enum class Axis { horizontal, vertical };

constexpr Axis across(Axis axis) {
    return axis == Axis::horizontal ? Axis::vertical : Axis::horizontal;
}

/// The size a parent offers a view, in points: an absent length asks for the ideal one, 0 for the
/// smallest, infinity for the largest.
struct Proposal {
    std::optional<double> width;
    std::optional<double> height;
    bool operator==(const Proposal&) const = default;

    static Proposal exactly(Size size) { return {size.width, size.height}; }
};

/// What rounding may take off a length on its way through padding and back, in points. A text must
/// not lose a line by it.
inline constexpr double roundingError = 1e-5;

/// What a view that takes whatever it is offered takes where nothing is offered.
inline constexpr double idealLength = 10;

inline Size sizeTaking(const Proposal& proposal) {
    return {proposal.width.value_or(idealLength), proposal.height.value_or(idealLength)};
}

/// A view's place: where it stands, how large it answered it is, and to which offer.
struct Placement {
    Rect frame;
    Proposal proposal;
};

}  // namespace views

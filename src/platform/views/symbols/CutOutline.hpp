#pragma once

#include "platform/views/geometry/Geometry.hpp"
#include "platform/views/shapes/Outline.hpp"

namespace views {

/// The half of the plane on the side of the straight line through `on` that `inwards` points to.
struct HalfPlane {
    Point on;
    Point inwards;
};

/// What of a closed outline lies in the half plane, its curves made of short lines; closed, empty
/// where nothing is left. The outline has one part.
Outline cutOutline(const Outline& path, const HalfPlane& half);

}  // namespace views

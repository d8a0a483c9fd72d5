#pragma once

#include "platform/views/geometry/Geometry.hpp"
#include "widgethost/Board.hpp"

#include <functional>

namespace desktop {

/// What a user asks of the desktop at one of its cards. The card may be gone after any of them,
/// once the main loop goes on.
struct CardRequests {
    std::function<void()> remove;
    std::function<void()> addWidgets;
    std::function<void()> placeAnew;  // all of them
    std::function<void(widgethost::Direction)> move;
    std::function<void(views::Point)> drop;   // with its corner at a point, in units of GTK
    std::function<void(int)> focusNeighbour;  // so many cards further
};

}  // namespace desktop

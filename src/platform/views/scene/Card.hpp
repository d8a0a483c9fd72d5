#pragma once

#include "platform/views/scene/Scene.hpp"
#include "platform/views/text/TextMeasurer.hpp"
#include "platform/views/view/View.hpp"

namespace views {

/// Where a view is drawn: a card of a size, with the same margin on all sides, at pixels per point.
struct Card {
    Size size;
    double margin = 0;
    double scale = 2;
};

/// Lays a view out on a card: it is offered what the margins leave, and stands in the middle of it
/// whatever size it takes.
Scene layOut(const View& content, const Card& card, const TextMeasurer& measurer);

}  // namespace views

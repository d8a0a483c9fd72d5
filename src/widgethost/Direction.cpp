#include "widgethost/Direction.hpp"

#include <cmath>
#include <utility>

namespace widgethost {

std::optional<double> distance(views::Point from, views::Point to, Direction way, double aside) {
    double along = to.x - from.x;
    double across = to.y - from.y;
    if (way == Direction::up || way == Direction::down)
        std::swap(along, across);
    if (way == Direction::left || way == Direction::up)
        along = -along;
    if (along < 1)
        return std::nullopt;
    return along + aside * std::abs(across);
}

}  // namespace widgethost

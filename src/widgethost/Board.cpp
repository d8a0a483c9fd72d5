#include "widgethost/Board.hpp"

#include <algorithm>
#include <cmath>

namespace widgethost {

Board::Board(const std::vector<Monitor>& monitors) {
    for (const Monitor& monitor : monitors)
        grids_.emplace_back(monitor.area);
}

bool Board::isFree(Spot spot, std::int64_t span) const {
    if (spot.monitor >= grids_.size() || !grids_[spot.monitor].holds(spot.cell, span))
        return false;
    return std::none_of(taken_.begin(), taken_.end(), [&](const Taken& other) {
        return other.spot.monitor == spot.monitor && other.spot.cell.row == spot.cell.row &&
               other.spot.cell.column < spot.cell.column + span &&
               spot.cell.column < other.spot.cell.column + other.span;
    });
}

void Board::take(Spot spot, std::int64_t span) {
    taken_.push_back({spot, span});
}

std::optional<Spot> Board::cheapest(
    std::int64_t span,
    const std::function<std::optional<double>(const Spot&)>& cost) const {
    std::optional<Spot> best;
    double lowest = 0;
    for (std::size_t monitor = 0; monitor < grids_.size(); ++monitor)
        for (std::int64_t row = 0; row < grids_[monitor].rows(); ++row)
            for (std::int64_t column = 0; column < grids_[monitor].columns(); ++column) {
                const Spot spot{monitor, {column, row}};
                if (!isFree(spot, span))
                    continue;
                const auto spotCost = cost(spot);
                if (!spotCost || (best && *spotCost >= lowest))
                    continue;
                best = spot;
                lowest = *spotCost;
            }
    return best;
}

std::optional<Spot> Board::nearest(views::Point point,
                                   std::int64_t span,
                                   std::optional<std::size_t> monitor) const {
    return cheapest(span, [&](const Spot& spot) -> std::optional<double> {
        if (monitor && spot.monitor != *monitor)
            return std::nullopt;
        const views::Point at = origin(spot);
        return std::hypot(at.x - point.x, at.y - point.y);
    });
}

std::optional<Spot> Board::first(std::int64_t span) const {
    for (std::size_t monitor = 0; monitor < grids_.size(); ++monitor) {
        const Grid& grid = grids_[monitor];
        const std::int64_t width = std::max(span, std::int64_t{2});
        for (std::int64_t right = grid.columns(); right > 0; right -= width)
            for (std::int64_t row = 0; row < grid.rows(); ++row)
                for (std::int64_t column = right - width; column <= right - span; ++column)
                    if (const Spot spot{monitor, {column, row}}; isFree(spot, span))
                        return spot;
    }
    return std::nullopt;
}

std::optional<Spot> Board::next(Spot from, Direction direction, std::int64_t span) const {
    const views::Point start = origin(from);
    return cheapest(span, [&](const Spot& spot) -> std::optional<double> {
        return distance(start, origin(spot), direction, 2);
    });
}

}  // namespace widgethost

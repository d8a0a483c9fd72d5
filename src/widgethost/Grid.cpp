#include "widgethost/Grid.hpp"

#include <algorithm>
#include <cmath>

namespace widgethost {

namespace {

/// How many cells have room in a length; at least `minimum`, so that there is always a grid.
std::int64_t count(double length, std::int64_t minimum) {
    return std::max(static_cast<std::int64_t>(std::floor((length - Grid::gap) / Grid::pitch)),
                    minimum);
}

}  // namespace

// A grid has room for the widest card even where the area has not.
Grid::Grid(const views::Rect& area)
    : columns_(count(area.width, 2)), rows_(count(area.height, 1)), corner_{area.x, area.y + gap} {
    const double taken = static_cast<double>(columns_) * pitch - gap;
    corner_.x += std::max(std::floor((area.width - taken) / 2), 0.0);
}

bool Grid::holds(Cell cell, std::int64_t span) const {
    return cell.column >= 0 && cell.row >= 0 && cell.row < rows_ && span >= 1 && span <= columns_ &&
           cell.column <= columns_ - span;
}

views::Point Grid::origin(Cell cell) const {
    return {corner_.x + static_cast<double>(cell.column) * pitch,
            corner_.y + static_cast<double>(cell.row) * pitch};
}

views::Size Grid::cardSize(std::int64_t span) {
    return {static_cast<double>(span) * pitch - gap, pitch - gap};
}

std::int64_t Grid::span(const views::Size& card) {
    return std::max(static_cast<std::int64_t>(std::ceil((card.width + gap) / pitch)),
                    std::int64_t{1});
}

}  // namespace widgethost

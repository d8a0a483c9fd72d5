#pragma once

#include "platform/views/geometry/Geometry.hpp"

#include <cstdint>

namespace widgethost {

/// A place in a grid, counted from its top-left corner.
struct Cell {
    std::int64_t column = 0;
    std::int64_t row = 0;
    bool operator==(const Cell&) const = default;
};

/// The cells of a part of the desktop, in points: as many as have room, in the middle of its width
/// and at its top. A card takes one cell or several side by side.
class Grid {
  public:
    /// The free strip between cards, and at least around them.
    static constexpr double gap = 24;
    /// From one cell to the next: a small card and a gap.
    static constexpr double pitch = 194;

    explicit Grid(const views::Rect& area);

    std::int64_t columns() const { return columns_; }
    std::int64_t rows() const { return rows_; }

    /// Whether a card that takes `span` cells from this one to the right has its place here.
    bool holds(Cell cell, std::int64_t span) const;

    /// The top-left corner of a card; cells beyond the grid go on in its step.
    views::Point origin(Cell cell) const;

    /// The size of a card of so many cells, and the cells of a card of such a size.
    static views::Size cardSize(std::int64_t span);
    static std::int64_t span(const views::Size& card);

  private:
    std::int64_t columns_;
    std::int64_t rows_;
    views::Point corner_;
};

}  // namespace widgethost

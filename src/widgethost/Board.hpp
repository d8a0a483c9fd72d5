#pragma once

#include "widgethost/Direction.hpp"
#include "widgethost/Grid.hpp"
#include "widgethost/Monitor.hpp"
#include "widgethost/Placement.hpp"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

namespace widgethost {

/// A cell of one of the monitors that are there.
struct Spot {
    std::size_t monitor = 0;
    Cell cell;
    bool operator==(const Spot&) const = default;
};

/// The grids of all monitors and what stands on them; nothing stands on anything else. The first
/// monitor is the primary one. Never fails.
class Board {
  public:
    explicit Board(const std::vector<Monitor>& monitors);

    bool isFree(Spot spot, std::int64_t span) const;
    void take(Spot spot, std::int64_t span);

    views::Point origin(Spot spot) const { return grids_[spot.monitor].origin(spot.cell); }

    /// The free spot that is nearest to a point, of one monitor or of all.
    std::optional<Spot> nearest(views::Point point,
                                std::int64_t span,
                                std::optional<std::size_t> monitor = {}) const;

    /// The first free spot for a new card: two columns fill up from the top right corner, then the
    /// two on their left, monitor after monitor.
    std::optional<Spot> first(std::int64_t span) const;

    /// The free spot that is next in a direction, straight on rather than aside.
    std::optional<Spot> next(Spot from, Direction direction, std::int64_t span) const;

  private:
    struct Taken {
        Spot spot;
        std::int64_t span;
    };

    /// The free spot with the lowest cost; those without a cost do not count.
    std::optional<Spot> cheapest(
        std::int64_t span,
        const std::function<std::optional<double>(const Spot&)>& cost) const;

    std::vector<Grid> grids_;
    std::vector<Taken> taken_;
};

}  // namespace widgethost

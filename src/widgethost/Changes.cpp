#include "widgethost/Changes.hpp"

#include "widgethost/Arrangement.hpp"

#include <optional>
#include <utility>

namespace widgethost {

namespace {

void settle(PlacedWidget& widget, Spot spot, const std::vector<Monitor>& monitors) {
    widget.monitor = monitors[spot.monitor].identity;
    widget.column = spot.cell.column;
    widget.row = spot.cell.row;
}

/// The board with all that stands there now, but for one that is not in its own way.
Board boardWithout(std::optional<std::size_t> index,
                   const Placement& placement,
                   const std::vector<Monitor>& monitors) {
    Board board(monitors);
    const auto spots = arranged(placement, monitors);
    for (std::size_t i = 0; i < spots.size(); ++i)
        if (spots[i] && i != index)
            board.take(*spots[i], placement.widgets[i].span);
    return board;
}

}  // namespace

bool add(Placement& placement,
         const std::string& kind,
         std::int64_t span,
         const std::vector<Monitor>& monitors) {
    const auto spot = boardWithout(std::nullopt, placement, monitors).first(span);
    if (spot)
        settle(placement.widgets.emplace_back(PlacedWidget{.kind = kind, .span = span}), *spot,
               monitors);
    return spot.has_value();
}

void move(Placement& placement,
          std::size_t index,
          Direction way,
          const std::vector<Monitor>& monitors) {
    PlacedWidget& widget = placement.widgets[index];
    const auto from = arranged(placement, monitors)[index];
    if (!from)
        return;
    if (const auto to = boardWithout(index, placement, monitors).next(*from, way, widget.span))
        settle(widget, *to, monitors);
}

void move(Placement& placement,
          std::size_t index,
          views::Point point,
          const std::vector<Monitor>& monitors) {
    PlacedWidget& widget = placement.widgets[index];
    if (const auto to = boardWithout(index, placement, monitors).nearest(point, widget.span))
        settle(widget, *to, monitors);
}

void tidy(Placement& placement, const std::vector<Monitor>& monitors) {
    Placement block;
    for (PlacedWidget& widget : placement.widgets)
        if (add(block, widget.kind, widget.span, monitors))
            widget = block.widgets.back();
}

}  // namespace widgethost

#pragma once

#include "widgethost/Board.hpp"
#include "widgethost/Monitor.hpp"
#include "widgethost/Placement.hpp"

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace widgethost {

/// Where each placed widget stands now: at its own place where that is there and free. A widget
/// whose monitor is missing waits on the primary one, which is the first, and one whose place is
/// not free stands on the nearest that is. Without any room left it stands nowhere.
std::vector<std::optional<Spot>> arranged(const Placement& placement,
                                          const std::vector<Monitor>& monitors);

/// The board with what stands there now, all but one.
Board boardWithout(const PlacedWidget* one,
                   const Placement& placement,
                   const std::vector<Monitor>& monitors);

/// Gives a widget a place.
void settle(PlacedWidget& widget, Spot spot, const std::vector<Monitor>& monitors);

/// A widget to be placed: its kind and the cells it takes.
using NewWidget = std::pair<std::string, std::int64_t>;

/// The widgets in a tidy block at the top right of the primary monitor, in this order; those for
/// which there is no room are left out.
std::vector<PlacedWidget> tidy(const std::vector<NewWidget>& widgets,
                               const std::vector<Monitor>& monitors);

}  // namespace widgethost

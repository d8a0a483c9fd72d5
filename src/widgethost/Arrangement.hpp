#pragma once

#include "widgethost/Board.hpp"
#include "widgethost/Monitor.hpp"
#include "widgethost/Placement.hpp"

#include <optional>
#include <vector>

namespace widgethost {

/// Where each placed widget stands now: at its own place where that is there and free. A widget
/// whose monitor is missing waits on the primary one, which is the first, and one whose place is
/// not free stands on the nearest that is. Without any room left it stands nowhere.
std::vector<std::optional<Spot>> arranged(const Placement& placement,
                                          const std::vector<Monitor>& monitors);

}  // namespace widgethost

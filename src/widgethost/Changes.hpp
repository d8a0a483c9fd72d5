#pragma once

#include "widgethost/Direction.hpp"
#include "widgethost/Monitor.hpp"
#include "widgethost/Placement.hpp"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace widgethost {

// What a user does to a placement. Widgets go by where they stand now, which is not their own place
// while their monitor is missing.

/// Adds a widget where the next one would go in a tidy block at the top right of the primary
/// monitor. False where there is no room for it.
bool add(Placement& placement,
         const std::string& kind,
         std::int64_t span,
         const std::vector<Monitor>& monitors);

/// Moves a widget to the next free place that way, if there is one.
void move(Placement& placement,
          std::size_t index,
          Direction way,
          const std::vector<Monitor>& monitors);

/// Moves a widget to the free place whose corner is nearest to a point, if there is one.
void move(Placement& placement,
          std::size_t index,
          views::Point point,
          const std::vector<Monitor>& monitors);

/// Puts all of them into a tidy block, in their order; those for which there is no room keep their
/// places.
void tidy(Placement& placement, const std::vector<Monitor>& monitors);

}  // namespace widgethost

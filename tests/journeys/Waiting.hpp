#pragma once

#include <chrono>
#include <functional>

namespace journeys {

/// Looks until the condition holds. False when it does not in time.
bool soon(const std::function<bool()>& condition,
          std::chrono::milliseconds patience = std::chrono::seconds(10));

/// How often a journey repeats what has to go well every time: seldom, unless time is no matter.
int times(int briefly, int atLength);

}  // namespace journeys

#pragma once

#include "support/Patience.hpp"

#include <chrono>
#include <functional>

namespace journeys {

/// Looks until the condition holds. False when it does not in time.
bool soon(const std::function<bool()>& condition,
          std::chrono::milliseconds patience = support::patience);

/// How long to wait for what users are promised within a time: no longer, where the machine has
/// nothing else to do. As long journeys have it.
std::chrono::milliseconds promised(std::chrono::milliseconds time);

/// How often a journey repeats what has to go well every time: seldom, unless time is no matter.
int times(int briefly, int atLength);

}  // namespace journeys

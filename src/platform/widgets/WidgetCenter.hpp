#pragma once

#include <chrono>

namespace widgets {

/// The way of a host application to the widget host, on the session bus.
namespace WidgetCenter {

/// Asks the widget host to ask all its widgets for their timelines again. Does not wait for an
/// answer and starts no widget host. False where there is no bus or it does not take the call
/// within `patience`.
bool reloadAllTimelines(std::chrono::milliseconds patience = std::chrono::seconds(1));

}  // namespace WidgetCenter

}  // namespace widgets

#pragma once

#include <chrono>
#include <string>

namespace widgets {

/// The way of a host application to the widget host, on the session bus.
namespace WidgetCenter {

/// Asks the widget host to ask all its widgets for their timelines again. Does not wait for an
/// answer and starts no widget host. False where there is no bus or it does not take the call
/// within `patience`.
bool reloadAllTimelines(std::chrono::milliseconds patience = std::chrono::seconds(1));

enum class Answer {
    done,
    noBus,   ///< there is no session bus
    noHost,  ///< no widget host answers there
};

/// Asks the same for the widgets of one kind, or for all where it is empty, and waits for the
/// answer.
Answer reloadTimelines(const std::string& kind,
                       std::chrono::milliseconds patience = std::chrono::seconds(2));

}  // namespace WidgetCenter

}  // namespace widgets

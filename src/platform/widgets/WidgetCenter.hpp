#pragma once

#include <chrono>
#include <string>

namespace widgets {

/// The way of a host application to the widget host, on the session bus.
namespace WidgetCenter {

/// The widget host's name, which is also that of its interface, and its object.
inline constexpr const char* name = "org.nurva.WidgetCenter";
inline constexpr const char* path = "/org/nurva/WidgetCenter";

/// Asks the widget host to ask all its widgets for their timelines again. Does not wait for an
/// answer and starts no widget host. False where there is no bus or it does not take the call
/// within `patience`.
bool reloadAllTimelines(std::chrono::milliseconds patience = std::chrono::seconds(1));

enum class Answer {
    done,    ///< it has done what it was asked
    noBus,   ///< there is no session bus
    noHost,  ///< no widget host answers there
};

/// Asks the same for the widgets of one kind, or for all where it is empty, and waits for the
/// answer.
Answer reloadTimelines(const std::string& kind,
                       std::chrono::milliseconds patience = std::chrono::seconds(2));

/// Sees whether a widget host answers, and asks nothing else of it.
Answer ping(std::chrono::milliseconds patience = std::chrono::seconds(2));

}  // namespace WidgetCenter

}  // namespace widgets

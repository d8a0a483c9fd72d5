#pragma once

#include "platform/intents/IntentRegistry.hpp"
#include "platform/widgets/WidgetBundle.hpp"

namespace process {

/// What a program offers to the widget host.
struct Extension {
    widgets::WidgetBundle (*widgets)() = nullptr;
    const intents::IntentRegistry& (*actions)() = nullptr;
};

}  // namespace process

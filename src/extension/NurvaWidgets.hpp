#pragma once

#include "platform/widgets/WidgetBundle.hpp"

namespace nurva {

/// The widgets of this extension, as the widget host lists them. Made afresh on every call.
widgets::WidgetBundle NurvaWidgets();

}  // namespace nurva

#pragma once

#include "platform/widgets/StaticConfiguration.hpp"

#include <string_view>
#include <vector>

namespace widgets {

/// The widgets of an extension, in the order of the gallery.
using WidgetBundle = std::vector<StaticConfiguration>;

/// The widget of a kind, or null; it lives as long as the bundle.
const StaticConfiguration* widgetOfKind(const WidgetBundle& bundle, std::string_view kind);

}  // namespace widgets

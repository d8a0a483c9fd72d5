#pragma once

#include "platform/views/geometry/Geometry.hpp"

#include <string>

namespace widgets {

enum class WidgetFamily { systemSmall, systemMedium };

/// The family as it is spelled in the code, such as "systemSmall".
std::string name(WidgetFamily family);

/// Size of the family's card in points: two small ones and the gap of 24 between them make a medium
/// one.
views::Size cardSize(WidgetFamily family);

/// What stays free around a widget's content on all four sides, in points: under it every text of a
/// small card has room for its two lines.
inline constexpr double contentMargin = 12;

}  // namespace widgets

#pragma once

#include "platform/views/scene/Card.hpp"
#include "platform/widgets/StaticConfiguration.hpp"

#include <string>

namespace cli {

/// A widget's face with what is known of it beside the drawing.
struct RenderedEntry {
    std::string kind;
    widgets::WidgetFamily family;
    double scale = 2;
    widgets::AnyEntry entry;
    foundation::Date reloadAfter;
    views::Scene scene;
};

/// The face as JSON, ending in a line break.
std::string json(const RenderedEntry& rendered);

/// An entry as JSON, ending in a line break; with null where it has no date to reload at.
std::string json(const widgets::AnyEntry& entry, std::optional<foundation::Date> reloadAfter);

}  // namespace cli

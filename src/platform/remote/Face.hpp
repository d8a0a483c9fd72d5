#pragma once

#include "platform/foundation/Date.hpp"
#include "platform/intents/ArchivedAction.hpp"
#include "platform/views/geometry/Geometry.hpp"
#include "platform/views/scene/Scene.hpp"

#include <optional>
#include <string>
#include <vector>

namespace remote {

/// Something on a card that a screen reader speaks of; with an action it can be pressed.
struct Element {
    views::AccessibilityRole role = views::AccessibilityRole::text;
    std::string label;
    bool enabled = true;
    views::Rect frame;  // in points of the card
    std::optional<intents::ArchivedAction> action;
    bool operator==(const Element&) const = default;
};

/// What is known of a drawn card beside its pixels.
struct Face {
    foundation::Date date;                        // of the entry
    std::optional<foundation::Date> reloadAfter;  // of a timeline only
    std::vector<Element> elements;                // in drawing order
    bool operator==(const Face&) const = default;
};

}  // namespace remote

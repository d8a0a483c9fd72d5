#pragma once

#include "platform/widgets/WidgetFamily.hpp"

#include <string>
#include <vector>

namespace remote {

/// A widget as the gallery shows it, its texts in the user's language.
struct WidgetDescription {
    std::string kind;
    std::string displayName;
    std::string description;
    std::vector<widgets::WidgetFamily> families;  // at least one
    bool operator==(const WidgetDescription&) const = default;
};

}  // namespace remote

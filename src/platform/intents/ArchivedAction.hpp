#pragma once

#include <string>
#include <utility>
#include <variant>
#include <vector>

namespace intents {

using ParameterValue = std::variant<std::string, bool, double>;

/// An action as a control carries it: which one, and the values of its parameters in field order.
struct ArchivedAction {
    std::string identifier;
    std::vector<std::pair<std::string, ParameterValue>> parameters;
    bool operator==(const ArchivedAction&) const = default;
};

}  // namespace intents

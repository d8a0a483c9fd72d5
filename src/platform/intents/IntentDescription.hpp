#pragma once

#include "platform/intents/AppIntent.hpp"
#include "platform/intents/ArchivedAction.hpp"

#include <string_view>
#include <vector>

namespace intents {

/// A parameter as others see it: its name in what is archived, its title (a Spanish key), its
/// value's type and how a value would be asked for.
struct ParameterDescription {
    /// In the order of the alternatives of ParameterValue.
    enum class Type { text, truth, number };

    std::string_view name;
    std::string_view title;
    Type type;
    ControlStyle controlStyle;
};

/// An action as others see it: identifier, title (a Spanish key) and parameters in field order.
struct IntentDescription {
    std::string_view identifier;
    std::string_view title;
    std::vector<ParameterDescription> parameters;

    /// The parameter of this name; null where there is none.
    const ParameterDescription* parameter(std::string_view name) const;
};

/// Requires of an archived action that it has each parameter once, with a value of its type, and
/// nothing else. Throws IntentError.
void require(const ArchivedAction& action, const IntentDescription& description);

template <AppIntent Intent>
IntentDescription describe() {
    const Intent intent;
    IntentDescription described{.identifier = Intent::identifier, .title = Intent::title};
    const auto add = [&](const auto& key) {
        const auto& parameter = intent.*key.member;
        using Value = typename std::remove_cvref_t<decltype(parameter.value)>::value_type;
        described.parameters.push_back(
            {.name = key.name,
             .title = parameter.title,
             .type = static_cast<ParameterDescription::Type>(ParameterValue(Value{}).index()),
             .controlStyle = parameter.controlStyle});
    };
    std::apply([&](const auto&... key) { (add(key), ...); }, Intent::parameters);
    return described;
}

}  // namespace intents

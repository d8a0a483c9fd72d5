#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace intents {

enum class ControlStyle { field, stepper };

/// A value that an action takes: what it is called where the user is asked for it, and the value
/// once it is given. No parameter has a range or a value of its own.
template <class Value>
struct IntentParameter {
    std::string_view title;  // a Spanish key
    ControlStyle controlStyle = ControlStyle::field;
    std::optional<Value> value;
};

/// Names a parameter of an action in what is archived of it.
template <class Intent, class Value>
struct ParameterKey {
    std::string_view name;
    IntentParameter<Value> Intent::*member;
};

template <class Intent, class Value>
ParameterKey(const char*, IntentParameter<Value> Intent::*) -> ParameterKey<Intent, Value>;

}  // namespace intents

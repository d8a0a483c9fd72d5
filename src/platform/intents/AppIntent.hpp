#pragma once

#include "platform/foundation/Environment.hpp"
#include "platform/intents/ArchivedAction.hpp"
#include "platform/intents/IntentParameter.hpp"

#include <concepts>
#include <string>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <utility>
#include <variant>

namespace intents {

/// The empty result of an action: no value, no dialog, no view.
struct IntentResult {
    bool operator==(const IntentResult&) const = default;
    static IntentResult result() { return {}; }
};

/// An action that a control names and that runs when it is pressed. It is made without values, gets
/// those that were archived, and performs once, on any thread. It has an identifier, a title (a
/// Spanish key) and a tuple of ParameterKeys.
template <class T>
concept AppIntent = std::default_initializable<T> &&
    requires(const T& intent, const foundation::Environment& environment) {
    { T::identifier } -> std::convertible_to<std::string_view>;
    { T::title } -> std::convertible_to<std::string_view>;
    std::tuple_size<std::remove_cvref_t<decltype(T::parameters)>>::value;
    { intent.perform(environment) } -> std::same_as<IntentResult>;
};

/// The action that was archived. Requires that it has a value of the right type for each parameter.
template <AppIntent Intent>
Intent restored(const ArchivedAction& action) {
    Intent intent;
    const auto restore = [&](auto& parameter, std::string_view name) {
        using Value = typename std::remove_cvref_t<decltype(parameter.value)>::value_type;
        for (const auto& [given, value] : action.parameters)
            if (given == name)
                parameter.value = std::get<Value>(value);
    };
    std::apply([&](const auto&... key) { (restore(intent.*key.member, key.name), ...); },
               Intent::parameters);
    return intent;
}

/// The action as a control carries it. Requires that all its parameters have their values.
template <AppIntent Intent>
ArchivedAction archived(Intent intent) {
    ArchivedAction action{.identifier = std::string(Intent::identifier)};
    std::apply(
        [&](const auto&... key) {
            action.parameters.reserve(sizeof...(key));
            (action.parameters.emplace_back(key.name,
                                            std::move((intent.*key.member).value).value()),
             ...);
        },
        Intent::parameters);
    return action;
}

}  // namespace intents

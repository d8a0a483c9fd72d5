#pragma once

#include "platform/intents/AppIntent.hpp"

#include <functional>
#include <stdexcept>
#include <string>
#include <string_view>

/// Notes what it is performed with, as a notification.
struct Note {
    static constexpr std::string_view identifier = "Note";
    static constexpr std::string_view title = "Anotar";

    intents::IntentParameter<std::string> text{.title = "Texto"};
    intents::IntentParameter<double> number{.title = "Número",
                                            .controlStyle = intents::ControlStyle::stepper};
    intents::IntentParameter<bool> truth{.title = "Verdad"};

    static constexpr std::tuple parameters{intents::ParameterKey{"text", &Note::text},
                                           intents::ParameterKey{"number", &Note::number},
                                           intents::ParameterKey{"truth", &Note::truth}};

    intents::IntentResult perform(const foundation::Environment& environment) const {
        environment.notifications.post(*text.value + " " + std::to_string(*number.value) +
                                       (*truth.value ? " yes" : " no"));
        return intents::IntentResult::result();
    }
};

struct Fail {
    static constexpr std::string_view identifier = "Fail";
    static constexpr std::string_view title = "Fallar";
    static constexpr std::tuple<> parameters{};

    intents::IntentResult perform(const foundation::Environment&) const {
        throw std::runtime_error("failed");
    }
};

inline const intents::ArchivedAction note{
    .identifier = "Note",
    .parameters = {{"text", "a"}, {"number", 0.5}, {"truth", true}}};

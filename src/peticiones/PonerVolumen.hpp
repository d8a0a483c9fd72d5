#pragma once

#include "platform/intents/AppIntent.hpp"

#include <string>

namespace nurva {

/// Sets the volume of an application, to whatever level it is given.
struct PonerVolumen {
    static constexpr std::string_view identifier = "PonerVolumen";
    static constexpr std::string_view title = "Poner el volumen de una app";

    intents::IntentParameter<std::string> clave{.title = "App"};
    intents::IntentParameter<double> nivel{.title = "Nivel",
                                           .controlStyle = intents::ControlStyle::stepper};

    static constexpr std::tuple parameters{intents::ParameterKey{"clave", &PonerVolumen::clave},
                                           intents::ParameterKey{"nivel", &PonerVolumen::nivel}};

    PonerVolumen() = default;
    PonerVolumen(std::string clave, double nivel);

    intents::IntentResult perform(const foundation::Environment& entorno) const;
};

}  // namespace nurva

#pragma once

#include "platform/intents/AppIntent.hpp"

#include <string>

namespace nurva {

/// Mutes an application, or unmutes it.
struct SilenciarApp {
    static constexpr std::string_view identifier = "SilenciarApp";
    static constexpr std::string_view title = "Silenciar una app";

    intents::IntentParameter<std::string> clave{.title = "App"};
    intents::IntentParameter<bool> silenciar{.title = "Silenciar"};

    static constexpr std::tuple parameters{
        intents::ParameterKey{"clave", &SilenciarApp::clave},
        intents::ParameterKey{"silenciar", &SilenciarApp::silenciar}};

    SilenciarApp() = default;
    SilenciarApp(std::string clave, bool silenciar);

    intents::IntentResult perform(const foundation::Environment& entorno) const;
};

}  // namespace nurva

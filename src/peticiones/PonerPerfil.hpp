#pragma once

#include "platform/intents/AppIntent.hpp"

#include <string>

namespace nurva {

/// Applies a profile.
struct PonerPerfil {
    static constexpr std::string_view identifier = "PonerPerfil";
    static constexpr std::string_view title = "Poner un perfil";

    intents::IntentParameter<std::string> id{.title = "Perfil"};

    static constexpr std::tuple parameters{intents::ParameterKey{"id", &PonerPerfil::id}};

    PonerPerfil() = default;
    explicit PonerPerfil(std::string id);

    intents::IntentResult perform(const foundation::Environment& entorno) const;
};

}  // namespace nurva

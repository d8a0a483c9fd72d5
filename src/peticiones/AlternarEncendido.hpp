#pragma once

#include "platform/intents/AppIntent.hpp"

namespace nurva {

/// Switches the equalizer on or off; which of the two, the host application knows.
struct AlternarEncendido {
    static constexpr std::string_view identifier = "AlternarEncendido";
    static constexpr std::string_view title = "Encender o apagar el ecualizador";

    static constexpr std::tuple<> parameters{};

    intents::IntentResult perform(const foundation::Environment& entorno) const;
};

}  // namespace nurva

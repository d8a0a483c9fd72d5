#include "peticiones/PonerPerfil.hpp"

#include "peticiones/Pedir.hpp"

#include <utility>

namespace nurva {

PonerPerfil::PonerPerfil(std::string suId) {
    id.value = std::move(suId);
}

intents::IntentResult PonerPerfil::perform(const foundation::Environment& entorno) const {
    GrupoDeApps::pedir(GrupoDeApps::Peticion::ponerPerfil(id.value.value()), entorno);
    return intents::IntentResult::result();
}

}  // namespace nurva

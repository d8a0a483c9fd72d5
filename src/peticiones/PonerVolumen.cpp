#include "peticiones/PonerVolumen.hpp"

#include "peticiones/Pedir.hpp"

#include <utility>

namespace nurva {

PonerVolumen::PonerVolumen(std::string suClave, double suNivel) {
    clave.value = std::move(suClave);
    nivel.value = suNivel;
}

intents::IntentResult PonerVolumen::perform(const foundation::Environment& entorno) const {
    GrupoDeApps::pedir(GrupoDeApps::Peticion::volumen(clave.value.value(), nivel.value.value()),
                       entorno);
    return intents::IntentResult::result();
}

}  // namespace nurva

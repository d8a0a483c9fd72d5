#include "peticiones/SilenciarApp.hpp"

#include "peticiones/Pedir.hpp"

#include <utility>

namespace nurva {

SilenciarApp::SilenciarApp(std::string suClave, bool enSilencio) {
    clave.value = std::move(suClave);
    silenciar.value = enSilencio;
}

intents::IntentResult SilenciarApp::perform(const foundation::Environment& entorno) const {
    GrupoDeApps::pedir(
        GrupoDeApps::Peticion::silenciar(clave.value.value(), silenciar.value.value()), entorno);
    return intents::IntentResult::result();
}

}  // namespace nurva

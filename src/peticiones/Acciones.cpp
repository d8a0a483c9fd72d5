#include "peticiones/Acciones.hpp"

#include "peticiones/AlternarEncendido.hpp"
#include "peticiones/PonerPerfil.hpp"
#include "peticiones/PonerVolumen.hpp"
#include "peticiones/SilenciarApp.hpp"

namespace nurva {

const intents::IntentRegistry& acciones() {
    static const auto registro =
        intents::IntentRegistry::of<PonerVolumen, SilenciarApp, AlternarEncendido, PonerPerfil>();
    return registro;
}

}  // namespace nurva

#include "peticiones/AlternarEncendido.hpp"

#include "peticiones/Pedir.hpp"

namespace nurva {

intents::IntentResult AlternarEncendido::perform(const foundation::Environment& entorno) const {
    GrupoDeApps::pedir(GrupoDeApps::Peticion::alternarEncendido(), entorno);
    return intents::IntentResult::result();
}

}  // namespace nurva

#include "estado/GrupoDeApps.hpp"

#include <optional>

namespace nurva {

std::string GrupoDeApps::identificador(const foundation::Bundle& paquete) {
    const auto valor = paquete.objectForInfoDictionaryKey("GrupoDeApps");
    if (const std::string* texto = valor ? valor->string() : nullptr)
        return *texto;
    return std::string("group.") + identificadorAnfitrion;
}

const std::string& GrupoDeApps::id(const foundation::Environment& entorno) {
    static const std::string unaVez = identificador(entorno.mainBundle);
    return unaVez;
}

}  // namespace nurva

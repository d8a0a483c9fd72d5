#include "peticiones/Pedir.hpp"

#include "estado/GrupoDeApps.hpp"
#include "platform/foundation/files/FileError.hpp"
#include "platform/foundation/json/JSONEncoder.hpp"

namespace nurva {

std::string GrupoDeApps::nombreDeNotificacion() {
    return std::string(identificadorAnfitrion) + ".peticionDeWidget";
}

void GrupoDeApps::pedir(const Peticion& peticion, const foundation::Environment& entorno) {
    const auto contenedor = entorno.fileManager.containerURL(id(entorno));
    if (!contenedor)
        return;
    std::string datos;
    try {
        datos = foundation::JSONEncoder().encode(peticion);
    } catch (const foundation::EncodingError&) {
        return;
    }
    try {
        entorno.fileManager.writeAtomically(datos, *contenedor / archivoDePeticion);
    } catch (const foundation::FileError&) {
        // The host application is told all the same: it finds the request before, or none.
    }
    entorno.notifications.post(nombreDeNotificacion());
}

}  // namespace nurva

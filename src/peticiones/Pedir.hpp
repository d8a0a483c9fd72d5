#pragma once

#include "peticiones/Peticion.hpp"
#include "platform/foundation/Environment.hpp"

#include <string>

namespace nurva::GrupoDeApps {

/// Name of the request in the root of the group container.
inline constexpr const char* archivoDePeticion = "peticion.json";

/// Name of the notification that says that a request is waiting.
std::string nombreDeNotificacion();

/// Hands a request to the host application: writes it into the container in the place of the last
/// one, then posts the notification, also where the writing failed. Nothing happens without a
/// container, or with a request that cannot be encoded. Nobody hears of a failure. Any thread; the
/// last writer wins.
void pedir(const Peticion& peticion, const foundation::Environment& entorno);

}  // namespace nurva::GrupoDeApps

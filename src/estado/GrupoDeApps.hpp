#pragma once

#include "platform/foundation/Environment.hpp"
#include "platform/foundation/bundle/Bundle.hpp"

#include <string>

namespace nurva {

/// Reverse-domain identifier of the host application.
inline constexpr const char* identificadorAnfitrion = "org.nurva.Nurva";

namespace GrupoDeApps {

/// Identifier of the group whose container is shared with the host application: what the bundle's
/// Info dictionary says under "GrupoDeApps", else the host application's own.
std::string identificador(const foundation::Bundle& paquete);

/// The same of this process, taken from its main bundle on the first call and kept. Any thread.
const std::string& id(const foundation::Environment& entorno);

}  // namespace GrupoDeApps

}  // namespace nurva

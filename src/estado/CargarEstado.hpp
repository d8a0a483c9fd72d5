#pragma once

#include "estado/EstadoParaWidgets.hpp"
#include "platform/foundation/Environment.hpp"

#include <optional>

namespace nurva {

/// Name of the snapshot in the root of the group container.
inline constexpr const char* archivoDeEstado = "estado.json";

/// Reads the host application's snapshot, anew on every call. Nothing when there is no container,
/// no readable file in it, or no snapshot in the file: which of these it was is nobody's business
/// here. Any thread.
std::optional<EstadoParaWidgets> cargarEstado(const foundation::Environment& entorno);

}  // namespace nurva

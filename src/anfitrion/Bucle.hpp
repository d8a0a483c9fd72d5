#pragma once

#include "anfitrion/Anfitrion.hpp"

namespace anfitrion {

/// Plays a scene in the group's container until the process is asked to end (SIGINT, SIGTERM).
/// Whoever sees the first snapshot is heard already. What it leaves behind grows old as after any
/// application that was closed. Throws std::system_error without a session bus.
void representar(Escena escena,
                 const std::filesystem::path& contenedor,
                 const foundation::Environment& entorno,
                 const Aviso& aviso);

}  // namespace anfitrion

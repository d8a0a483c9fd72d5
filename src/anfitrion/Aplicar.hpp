#pragma once

#include "estado/EstadoParaWidgets.hpp"
#include "peticiones/Peticion.hpp"

#include <string>

namespace anfitrion {

/// Why a request is not done.
enum class Rechazo {
    ninguno,
    noSeDejaCambiar,
    appDesconocida,
    perfilDesconocido,
    nivelFueraDeRango
};

/// Does what a widget asks for; a request that is refused changes nothing.
Rechazo aplicar(const nurva::GrupoDeApps::Peticion& peticion, nurva::EstadoParaWidgets& estado);

}  // namespace anfitrion

#pragma once

#include "estado/EstadoParaWidgets.hpp"
#include "platform/views/scene/Card.hpp"
#include "platform/views/view/BuildEnvironment.hpp"
#include "support/FixedTextMeasurer.hpp"
#include "support/SceneQueries.hpp"
#include "support/World.hpp"

namespace nurva {

inline constexpr views::Size chica{170, 170};
inline constexpr views::Size mediana{364, 170};

/// A snapshot written now, as a host application in full swing would.
inline EstadoParaWidgets estadoDeAhora() {
    EstadoParaWidgets estado = EstadoParaWidgets::porDefecto(support::noon);
    estado.perfil = "Voz";
    estado.razon = "Suena un pódcast";
    estado.curva = {0, 6, -6, 12, -12};
    estado.salida = "Audífonos";
    estado.medidoHace = "hace 3 días";
    estado.dejaCambiar = true;
    return estado;
}

/// Lays a view out on a card as the widgets do, with texts of fixed advances.
template <class Vista>
views::Scene escena(const support::World& mundo, const Vista& vista, views::Size tarjeta = chica) {
    const views::BuildScope construccion(mundo.environment);
    const support::FixedTextMeasurer medidor;
    return views::layOut(vista, {.size = tarjeta, .margin = 12, .scale = 2}, medidor);
}

}  // namespace nurva

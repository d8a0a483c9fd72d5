#include "vistas/Cara.hpp"

#include "linea/Idioma.hpp"
#include "platform/views/view/BuildEnvironment.hpp"
#include "vistas/SinDatos.hpp"
#include "vistas/WO.hpp"

namespace nurva {

using namespace views;

namespace {

/// A moment in the future is current too; an age that is no number is not.
bool vigente(const EstadoParaWidgets& e) {
    return buildEnvironment().clock.now().timeIntervalSince(e.cuando) < segundosDeVigencia;
}

}  // namespace

View cara(const std::optional<EstadoParaWidgets>& e,
          const std::function<View(const EstadoParaWidgets&)>& contenido) {
    Idioma::fijar(e ? e->idioma : std::nullopt);
    WO::acentoHex = e ? e->acento : WO::acentoHexInicial;
    const View visible =
        e && vigente(*e) ? contenido(*e) : View(SinDatos{.cerrado = e.has_value()});
    return visible.containerBackground(WO::fondo);
}

}  // namespace nurva

#include "vistas/Cara.hpp"

#include "linea/Idioma.hpp"
#include "platform/views/view/BuildEnvironment.hpp"
#include "vistas/SinDatos.hpp"
#include "vistas/WO.hpp"

namespace nurva {

using namespace views;

bool vigente(const EstadoParaWidgets& e, foundation::Date ahora) {
    return ahora.timeIntervalSince(e.cuando) < segundosDeVigencia;
}

View cara(const std::optional<EstadoParaWidgets>& e,
          const std::function<View(const EstadoParaWidgets&)>& contenido) {
    Idioma::fijar(e ? e->idioma : std::nullopt);
    WO::acentoHex = e ? e->acento : WO::acentoHexInicial;
    const View visible = e && vigente(*e, buildEnvironment().clock.now())
                             ? contenido(*e)
                             : View(SinDatos{.cerrado = e.has_value()});
    return visible.containerBackground(WO::fondo);
}

}  // namespace nurva

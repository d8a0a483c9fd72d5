#include "vistas/JaladorChico.hpp"

#include "linea/Idioma.hpp"
#include "peticiones/PonerVolumen.hpp"
#include "platform/views/controls/Segments.hpp"
#include "platform/views/layout/GeometryReader.hpp"
#include "platform/views/stacks/Stacks.hpp"
#include "platform/views/view/ViewList.hpp"
#include "vistas/WO.hpp"

#include <algorithm>
#include <cstdint>

namespace nurva {

using namespace views;

namespace {

constexpr double alto = 16;
constexpr Color colorDePerilla{0.847, 0.867, 0.875};

/// The tenths of the bar: nothing to see, all of it to press.
View decimos(const std::string& clave) {
    return Segments(10, [clave](int i) {
        const double nivel = i / 10.0;
        return Control{
            .label = Idioma::texto("%lld por ciento", {static_cast<std::int64_t>(nivel * 100)}),
            .action = intents::archived(PonerVolumen(clave, nivel)),
        };
    });
}

View barra(const JaladorChico& jalador, double ancho) {
    const double lleno = ancho * fraccionLlena(jalador.nivel);
    return ZStack{.alignment = Alignment::leading()}({
        Capsule{}.fill(WO::control).frame({.height = 5}),
        Capsule{}
            .fill(jalador.silenciada ? WO::texto3 : WO::acento())
            .frame({.width = lleno, .height = 5}),
        RoundedRectangle{.cornerRadius = 3}
            .fill(colorDePerilla)
            .frame({.width = 7, .height = 16})
            .offset(std::max(lleno - 3.5, 0.0), 0),
        when(jalador.clave && jalador.puedeCambiar,
             [&] { return decimos(*jalador.clave).frame({.height = alto}); }),
    });
}

}  // namespace

double fraccionLlena(double nivel) {
    if (nivel <= 0)
        return 0;
    return nivel > 1 ? 1 : nivel;
}

View JaladorChico::body() const {
    const View aLoAncho = GeometryReader([jalador = *this](Size medida) {
        return barra(jalador, medida.width).frame({.height = alto});
    });
    return aLoAncho.frame({.height = alto});
}

}  // namespace nurva

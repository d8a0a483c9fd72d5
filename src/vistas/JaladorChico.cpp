#include "vistas/JaladorChico.hpp"

#include "linea/Idioma.hpp"
#include "peticiones/PonerVolumen.hpp"
#include "platform/views/controls/Button.hpp"
#include "platform/views/layout/GeometryReader.hpp"
#include "platform/views/stacks/Stacks.hpp"
#include "platform/views/view/ViewList.hpp"
#include "vistas/WO.hpp"

#include <algorithm>
#include <array>
#include <cstdint>

namespace nurva {

using namespace views;

namespace {

constexpr double alto = 16;
constexpr Color colorDePerilla{0.847, 0.867, 0.875};

/// One tenth of the bar: nothing to see, all of it to press.
View decimo(const std::string& clave, int i, const View& nada) {
    const double nivel = i / 10.0;
    return Button(intents::archived(PonerVolumen(clave, nivel)), nada)
        .accessibilityLabel(
            Idioma::texto("%lld por ciento", {static_cast<std::int64_t>(nivel * 100)}));
}

View decimos(const std::string& clave) {
    constexpr std::array lugares{1, 2, 3, 4, 5, 6, 7, 8, 9, 10};
    const View nada = Color::clear();
    return HStack{.spacing = 0}({
        forEach(lugares, [&](int i) { return decimo(clave, i, nada); }),
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
    return GeometryReader([jalador = *this](Size medida) {
               return barra(jalador, medida.width).frame({.height = alto});
           })
        .frame({.height = alto});
}

}  // namespace nurva

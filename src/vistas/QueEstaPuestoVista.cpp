#include "vistas/QueEstaPuestoVista.hpp"

#include "platform/views/shapes/Shape.hpp"
#include "platform/views/stacks/Spacer.hpp"
#include "platform/views/stacks/Stacks.hpp"
#include "platform/views/text/Text.hpp"
#include "platform/views/view/ViewList.hpp"
#include "vistas/Cabecera.hpp"
#include "vistas/Cara.hpp"
#include "vistas/CurvaChica.hpp"
#include "vistas/Sistema.hpp"
#include "vistas/WO.hpp"

namespace nurva {

using namespace views;

namespace {

View cabecera(bool prendido) {
    return Cabecera{
        .rotulo = "Nurva",
        .alFinal =
            Circle{}.fill(prendido ? WO::acento() : WO::texto3).frame({.width = 6, .height = 6}),
    };
}

View contenido(const EstadoParaWidgets& e) {
    return VStack{.alignment = leading, .spacing = 0}({
        cabecera(e.prendido),
        CurvaChica{.ganancias = e.curva, .color = WO::acento(), .grosor = 2.2, .conArea = true}
            .frame({.height = 44})
            .padding(Edge::top, 10),
        Spacer{.minLength = 6},
        Text(e.perfil).font(sistema(19, semibold)).foregroundStyle(WO::texto).lineLimit(1),
        when(!e.razon.empty(),
             [&] {
                 return Text(e.razon).font(sistema(11)).foregroundStyle(WO::texto2).lineLimit(2);
             }),
        Text(e.salida)
            .font(sistema(10.5))
            .foregroundStyle(WO::texto3)
            .lineLimit(1)
            .padding(Edge::top, 4),
    });
}

}  // namespace

View QueEstaPuestoVista::body() const {
    return cara(e, contenido);
}

}  // namespace nurva

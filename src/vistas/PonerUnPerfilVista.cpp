#include "vistas/PonerUnPerfilVista.hpp"

#include "linea/Idioma.hpp"
#include "peticiones/AlternarEncendido.hpp"
#include "peticiones/PonerPerfil.hpp"
#include "platform/views/controls/Button.hpp"
#include "platform/views/controls/Divider.hpp"
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

View cabecera(const std::string& perfil) {
    return Cabecera{
        .rotulo = Idioma::texto("Poner un perfil"),
        .alFinal = Text(Idioma::texto("ahora: %@", {perfil}))
                       .font(sistema(10.5))
                       .foregroundStyle(WO::texto3)
                       .lineLimit(1),
    };
}

View loseta(const PerfilCorto& perfil, bool dejaCambiar) {
    constexpr RoundedRectangle forma{.cornerRadius = 9};
    const View etiqueta =
        VStack{.spacing = 3}({
                                 CurvaChica{.ganancias = perfil.curva,
                                            .color = perfil.puesto ? WO::acento() : WO::texto2,
                                            .grosor = 1.6,
                                            .conArea = false}
                                     .frame({.width = 34, .height = 10}),
                                 Text(perfil.nombre)
                                     .font(sistema(11.5, semibold))
                                     .foregroundStyle(perfil.puesto ? WO::acento() : WO::texto)
                                     .lineLimit(1),
                             })
            .frame(FlexibleFrame{.maxWidth = infinity, .minHeight = 44})
            .background(perfil.puesto ? WO::acento().opacity(0.14) : WO::control, forma)
            .overlay(forma.strokeBorder(perfil.puesto ? WO::acento().opacity(0.4) : WO::filete, 1));
    return Button(intents::archived(PonerPerfil(perfil.id)), etiqueta).disabled(!dejaCambiar);
}

View losetas(const std::vector<PerfilCorto>& perfiles, bool dejaCambiar) {
    return HStack{.spacing = 8}(
               {
                   forEach(perfiles,
                           [&](const PerfilCorto& perfil) { return loseta(perfil, dejaCambiar); }),
               })
        .padding(Edge::top, 12);
}

View pastilla(bool prendido, bool dejaCambiar) {
    constexpr RoundedRectangle forma{.cornerRadius = 8};
    const auto texto = prendido ? "Ecualizador encendido" : "Ecualizador apagado";
    const View etiqueta =
        HStack{.spacing = 6}(
            {
                Circle{}
                    .fill(prendido ? WO::acento() : WO::texto3)
                    .frame({.width = 7, .height = 7}),
                Text(Idioma::texto(texto)).font(sistema(11.5, semibold)).foregroundStyle(WO::texto),
            })
            .padding(Edge::horizontal, 12)
            .padding(Edge::vertical, 6)
            .background(WO::control, forma)
            .overlay(forma.strokeBorder(WO::filete, 1));
    return Button(intents::archived(AlternarEncendido{}), etiqueta).disabled(!dejaCambiar);
}

View interruptor(const EstadoParaWidgets& e) {
    const auto nota =
        e.dejaCambiar ? "se aplica sin abrir Nurva" : "solo muestra · actívalo en Ajustes";
    return HStack{.spacing = 10}({
                                     pastilla(e.prendido, e.dejaCambiar),
                                     Spacer{.minLength = 0},
                                     Text(Idioma::texto(nota))
                                         .font(sistema(10.5))
                                         .foregroundStyle(WO::texto3)
                                         .lineLimit(1),
                                 })
        .padding(Edge::top, 10);
}

View contenido(const EstadoParaWidgets& e) {
    return VStack{.alignment = leading, .spacing = 0}({
        cabecera(e.perfil),
        losetas(e.perfiles, e.dejaCambiar),
        Spacer{.minLength = 0},
        Divider{}.overlay(WO::filete),
        interruptor(e),
    });
}

}  // namespace

View PonerUnPerfilVista::body() const {
    return cara(e, contenido);
}

}  // namespace nurva

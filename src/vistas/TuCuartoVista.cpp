#include "vistas/TuCuartoVista.hpp"

#include "linea/Idioma.hpp"
#include "platform/foundation/localization/NumberFormat.hpp"
#include "platform/views/stacks/Spacer.hpp"
#include "platform/views/stacks/Stacks.hpp"
#include "platform/views/text/Text.hpp"
#include "platform/views/view/ViewList.hpp"
#include "vistas/Cabecera.hpp"
#include "vistas/Cara.hpp"
#include "vistas/Sistema.hpp"
#include "vistas/WO.hpp"

namespace nurva {

using namespace views;

namespace {

View cabecera(const std::string& medidoHace) {
    return Cabecera{
        .rotulo = Idioma::texto("Tu cuarto"),
        .alFinal = Text(medidoHace).font(sistema(10)).foregroundStyle(WO::texto3).lineLimit(1),
    };
}

/// The value after correction follows the system's language and locale; the one before is always
/// written with a point.
View medida(double ahora, const std::optional<double>& antes) {
    return ViewList{
        HStack{.alignment = firstTextBaseline, .spacing = 5}({
            Text::localized("±%.1f", {ahora})
                .font(sistema(26, medium, FontDesign::monospaced))
                .foregroundStyle(WO::acento()),
            Text::localized("dB").font(sistema(11)).foregroundStyle(WO::texto2),
        }),
        when(antes.has_value(),
             [&] {
                 return Text(Idioma::texto("antes ±%@", {foundation::formatFixed1(*antes)}))
                     .font(sistema(10.5))
                     .foregroundStyle(WO::texto3);
             }),
    };
}

View sinMedir() {
    return ViewList{
        Text(Idioma::texto("Sin medir")).font(sistema(17, semibold)).foregroundStyle(WO::ambar),
        Text(Idioma::texto("mídela y sabrás qué corrige"))
            .font(sistema(10.5))
            .foregroundStyle(WO::texto3)
            .lineLimit(2),
    };
}

View porMedir(std::int64_t salidas) {
    return Text(Idioma::texto("%lld salidas sin medir", {salidas}))
        .font(sistema(10))
        .foregroundStyle(WO::texto3)
        .padding(Edge::top, 8);
}

View contenido(const EstadoParaWidgets& e) {
    return VStack{.alignment = leading, .spacing = 0}({
        cabecera(e.medidoHace),
        Text(e.salida)
            .font(sistema(12.5, semibold))
            .foregroundStyle(WO::texto)
            .lineLimit(2)
            .padding(Edge::top, 10),
        Spacer{.minLength = 6},
        e.cuartoAhora ? medida(*e.cuartoAhora, e.cuartoAntes) : sinMedir(),
        when(e.salidasSinMedir >= 1, [&] { return porMedir(e.salidasSinMedir); }),
    });
}

}  // namespace

View TuCuartoVista::body() const {
    return cara(e, contenido);
}

}  // namespace nurva

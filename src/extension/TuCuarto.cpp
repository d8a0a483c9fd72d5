#include "extension/TuCuarto.hpp"

#include "linea/Proveedor.hpp"
#include "vistas/TuCuartoVista.hpp"

namespace nurva {

widgets::StaticConfiguration TuCuarto::body() const {
    return widgets::StaticConfiguration(
               "nurva.tuCuarto", Proveedor{},
               [](const Entrada& entrada) { return TuCuartoVista{.e = entrada.estado}; })
        .configurationDisplayName("Tu cuarto")
        .description("Cuánto se corrigió, y cuántas salidas siguen sin medir.")
        .supportedFamilies({widgets::WidgetFamily::systemSmall});
}

}  // namespace nurva

#include "extension/QueEstaPuesto.hpp"

#include "linea/Proveedor.hpp"
#include "vistas/QueEstaPuestoVista.hpp"

namespace nurva {

widgets::StaticConfiguration QueEstaPuesto::body() const {
    return widgets::StaticConfiguration(
               "nurva.queEstaPuesto", Proveedor{},
               [](const Entrada& entrada) { return QueEstaPuestoVista{.e = entrada.estado}; })
        .configurationDisplayName("Qué está puesto")
        .description("El perfil, su curva y por qué está puesto.")
        .supportedFamilies({widgets::WidgetFamily::systemSmall});
}

}  // namespace nurva

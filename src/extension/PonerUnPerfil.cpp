#include "extension/PonerUnPerfil.hpp"

#include "linea/Proveedor.hpp"
#include "vistas/PonerUnPerfilVista.hpp"

namespace nurva {

widgets::StaticConfiguration PonerUnPerfil::body() const {
    return widgets::StaticConfiguration(
               "nurva.ponerUnPerfil", Proveedor{},
               [](const Entrada& entrada) { return PonerUnPerfilVista{.e = entrada.estado}; })
        .configurationDisplayName("Poner un perfil")
        .description("Cambia de perfil y enciende o apaga, sin abrir Nurva.")
        .supportedFamilies({widgets::WidgetFamily::systemMedium});
}

}  // namespace nurva

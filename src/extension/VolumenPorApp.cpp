#include "extension/VolumenPorApp.hpp"

#include "linea/Proveedor.hpp"
#include "vistas/VolumenPorAppVista.hpp"

namespace nurva {

widgets::StaticConfiguration VolumenPorApp::body() const {
    return widgets::StaticConfiguration(
               "nurva.volumenPorApp", Proveedor{},
               [](const Entrada& entrada) { return VolumenPorAppVista{.e = entrada.estado}; })
        .configurationDisplayName("Volumen por app")
        .description("Las que suenan, con su nivel y el silenciador.")
        .supportedFamilies({widgets::WidgetFamily::systemMedium});
}

}  // namespace nurva

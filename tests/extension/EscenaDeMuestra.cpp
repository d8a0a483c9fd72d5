#include "extension/EscenaDeMuestra.hpp"

#include "extension/NurvaWidgets.hpp"
#include "platform/canvas/PangoTextMeasurer.hpp"
#include "platform/foundation/json/JSONEncoder.hpp"
#include "platform/widgets/EntryRenderer.hpp"
#include "support/World.hpp"

namespace nurva {

views::Scene escenaDe(const Muestra& muestra, canvas::FontLibrary& fuentes) {
    support::World mundo(support::World::bundleIn({muestra.idiomaDelSistema}), muestra.locale);
    mundo.files.containers["group.org.nurva.Nurva"] = "/contenedor";
    if (muestra.estado)
        mundo.files.files["/contenedor/estado.json"] =
            foundation::JSONEncoder().encode(*muestra.estado);
    const auto paquete = NurvaWidgets();
    const auto* widget = widgets::widgetOfKind(paquete, muestra.kind);
    const auto familia = widget->families().at(0);
    const auto entrada = widget->snapshot({.environment = mundo.environment, .family = familia});
    const canvas::PangoTextMeasurer medidor(fuentes);
    return widgets::EntryRenderer(mundo.environment, medidor)
        .render(entrada, {.size = widgets::cardSize(familia),
                          .margin = widgets::contentMargin,
                          .scale = escala});
}

}  // namespace nurva

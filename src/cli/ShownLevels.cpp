#include "cli/ShownLevels.hpp"

#include "cli/Failure.hpp"
#include "cli/Message.hpp"
#include "estado/EstadoParaWidgets.hpp"
#include "extension/VolumenPorApp.hpp"
#include "platform/foundation/json/JSONEncoder.hpp"
#include "vistas/Cara.hpp"
#include "vistas/VolumenPorAppVista.hpp"

namespace cli {

void requireLevelsToShow(const widgets::StaticConfiguration& widget,
                         const widgets::AnyEntry& entry,
                         foundation::Date now) {
    if (widget.kind() != nurva::VolumenPorApp().body().kind())
        return;
    const auto state = entry.stateAs<nurva::EstadoParaWidgets>();
    if (!state || !nurva::vigente(*state, now))
        return;
    for (const nurva::AppCorta& app : state->apps)
        if (!app.silenciada && !nurva::tienePorciento(app.nivel))
            throw Failure(ExitStatus::couldNot,
                          message("no se puede dibujar: el nivel de %@ es %@, y eso no cabe en un "
                                  "tanto por ciento",
                                  {app.nombre, foundation::JSONEncoder().encode(app.nivel)}));
}

}  // namespace cli

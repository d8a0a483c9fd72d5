#include "linea/Proveedor.hpp"

#include "estado/CargarEstado.hpp"

namespace nurva {

namespace {

Entrada entradaDeAhora(const foundation::Environment& entorno) {
    const foundation::Date ahora = entorno.clock.now();
    return {.date = ahora, .estado = cargarEstado(entorno)};
}

}  // namespace

Entrada Proveedor::placeholder(const Context& context) const {
    const foundation::Date ahora = context.environment.clock.now();
    return {.date = ahora, .estado = EstadoParaWidgets::porDefecto(ahora)};
}

void Proveedor::getSnapshot(const Context& context,
                            const std::function<void(Entrada)>& completion) const {
    completion(entradaDeAhora(context.environment));
}

void Proveedor::getTimeline(
    const Context& context,
    const std::function<void(widgets::Timeline<Entrada>)>& completion) const {
    Entrada entrada = entradaDeAhora(context.environment);
    const foundation::Date leido = context.environment.clock.now();
    completion({
        .entries = {std::move(entrada)},
        .policy =
            widgets::TimelineReloadPolicy::after(leido.addingTimeInterval(segundosHastaRecargar)),
    });
}

}  // namespace nurva

#include "enlace/Publicador.hpp"

#include "estado/CargarEstado.hpp"
#include "estado/GrupoDeApps.hpp"
#include "platform/foundation/files/DefaultFileManager.hpp"
#include "platform/foundation/json/JSONEncoder.hpp"
#include "platform/widgets/WidgetCenter.hpp"

namespace nurva {

Publicador::Publicador() : Publicador(GrupoDeApps::id(foundation::processEnvironment())) {}

Publicador::Publicador(const std::string& grupo)
    : contenedor_(foundation::DefaultFileManager().createContainer(grupo)) {}

void Publicador::publicar(EstadoParaWidgets estado) const {
    const foundation::Environment entorno = foundation::processEnvironment();
    estado.cuando = entorno.clock.now();
    entorno.fileManager.writeAtomically(foundation::JSONEncoder().encode(estado),
                                        contenedor_ / archivoDeEstado);
    widgets::WidgetCenter::reloadAllTimelines();
}

}  // namespace nurva

#include "estado/CargarEstado.hpp"

#include "estado/GrupoDeApps.hpp"
#include "platform/foundation/files/FileError.hpp"
#include "platform/foundation/json/JSONDecoder.hpp"

namespace nurva {

std::optional<EstadoParaWidgets> cargarEstado(const foundation::Environment& entorno) {
    const auto contenedor = entorno.fileManager.containerURL(GrupoDeApps::id(entorno));
    if (!contenedor)
        return std::nullopt;
    try {
        const std::string datos = entorno.fileManager.contents(*contenedor / archivoDeEstado);
        return foundation::JSONDecoder().decode<EstadoParaWidgets>(datos);
    } catch (const foundation::FileError&) {
        return std::nullopt;
    } catch (const foundation::DecodingError&) {
        return std::nullopt;
    }
}

}  // namespace nurva

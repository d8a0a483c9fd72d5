#include "cli/FileReport.hpp"

#include "cli/Message.hpp"
#include "estado/CargarEstado.hpp"
#include "estado/GrupoDeApps.hpp"
#include "peticiones/Peticion.hpp"
#include "platform/foundation/FileError.hpp"
#include "platform/foundation/json/JSONDecoder.hpp"

#include <cstring>

namespace cli {

namespace {

std::string reason(const foundation::DecodingError& error) {
    using Kind = foundation::DecodingError::Kind;
    switch (error.kind) {
        case Kind::keyNotFound:
            return message("falta esta clave, que es obligatoria");
        case Kind::typeMismatch:
            return message("el valor es de otro tipo");
        case Kind::valueNotFound:
            return message("es null y tiene que llevar un valor");
        case Kind::dataCorrupted:
            break;
    }
    return error.codingPath.empty() ? message("no es JSON válido en UTF-8")
                                    : message("el valor no cabe o está mal escrito");
}

}  // namespace

template <class Value>
FileReport<Value> reportOn(const foundation::FileManager& files,
                           const std::filesystem::path& path) {
    try {
        const std::string data = files.contents(path);
        return {.value = foundation::JSONDecoder().decode<Value>(data)};
    } catch (const foundation::FileError& error) {
        return {.refusal = Refusal{"unreadable", "", std::strerror(error.code())}};
    } catch (const foundation::DecodingError& error) {
        return {.refusal = Refusal{std::string(name(error.kind)), error.place(), reason(error)}};
    }
}

template FileReport<nurva::EstadoParaWidgets> reportOn(const foundation::FileManager&,
                                                       const std::filesystem::path&);
template FileReport<nurva::GrupoDeApps::Peticion> reportOn(const foundation::FileManager&,
                                                           const std::filesystem::path&);

std::string text(const std::string& file, const Refusal& refusal) {
    if (refusal.path.empty())
        return message("%@: rechazado (%@): %@", {file, refusal.kind, refusal.reason});
    return message("%@: rechazado (%@) en %@: %@",
                   {file, refusal.kind, refusal.path, refusal.reason});
}

std::optional<std::string> whyNoSnapshot(const foundation::Environment& environment) {
    const std::string& group = nurva::GrupoDeApps::id(environment);
    const auto container = environment.fileManager.containerURL(group);
    if (!container)
        return message("no existe el contenedor del grupo %@; abre Nurva una vez", {group});
    const std::filesystem::path file = *container / nurva::archivoDeEstado;
    const auto report = reportOn<nurva::EstadoParaWidgets>(environment.fileManager, file);
    if (!report.refusal)
        return std::nullopt;
    return text(file.string(), *report.refusal);
}

}  // namespace cli

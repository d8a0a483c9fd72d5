#include "cli/FileReport.hpp"

#include "cli/Message.hpp"
#include "estado/CargarEstado.hpp"
#include "estado/GrupoDeApps.hpp"
#include "peticiones/Peticion.hpp"
#include "platform/foundation/files/DefaultFileManager.hpp"
#include "platform/foundation/files/FileError.hpp"
#include "platform/foundation/json/JSONDecoder.hpp"

#include <cerrno>
#include <cstdio>
#include <cstring>

namespace cli {

namespace {

/// Of a fault that belongs to the whole text: it is no JSON, or has a number that no field can
/// hold.
std::string reasonWithoutPlace(const std::string& description) {
    const std::string malformed = foundation::DecodingError::malformed().debugDescription;
    if (!description.starts_with(malformed))
        return message("un número no cabe en su sitio: %@", {description});
    long long line = 0;
    long long column = 0;
    if (std::sscanf(description.c_str() + malformed.size(), " (line %lld, column %lld)", &line,
                    &column) != 2)
        return message("no es JSON válido en UTF-8");
    return message("no es JSON válido en UTF-8: línea %lld, columna %lld", {line, column});
}

std::string reason(const foundation::FileError& error) {
    // What the file manager says of devices, pipes and the like.
    if (error.code() == EINVAL)
        return message("no es un archivo normal");
    return std::strerror(error.code());
}

std::string keysOfARequest() {
    using enum nurva::GrupoDeApps::Peticion::CodingKeys;
    std::string keys;
    for (const auto key : {ponerPerfil, alternarEncendido, silenciar, volumen})
        keys += (keys.empty() ? "" : ", ") + std::string(nombre(key));
    return keys;
}

std::string reason(const foundation::DecodingError& error) {
    using Kind = foundation::DecodingError::Kind;
    switch (error.kind) {
        case Kind::keyNotFound:
            return message("falta esta clave, que es obligatoria");
        case Kind::typeMismatch:
            if (error.debugDescription.starts_with("Invalid number of keys"))
                return message("tiene que llevar una sola de estas claves: %@", {keysOfARequest()});
            return message("el valor es de otro tipo: %@", {error.debugDescription});
        case Kind::valueNotFound:
            return message("es null y tiene que llevar un valor");
        case Kind::dataCorrupted:
            break;
    }
    if (!error.codingPath.empty())
        return message("el valor no cabe o está mal escrito");
    return reasonWithoutPlace(error.debugDescription);
}

}  // namespace

template <class Value>
FileReport<Value> reportOn(const foundation::FileManager& files,
                           const std::filesystem::path& path) {
    try {
        const std::string data = files.contents(path);
        return {.value = foundation::JSONDecoder().decode<Value>(data)};
    } catch (const foundation::FileError& error) {
        return {.refusal = Refusal{"unreadable", "", reason(error)}};
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

std::optional<std::string> whyNoPlace(const std::string& group) {
    if (!foundation::DefaultFileManager::namesContainer(group))
        return message("el paquete no nombra ningún grupo que pueda ser una carpeta: «%@»",
                       {group});
    if (foundation::DefaultFileManager().containerPlace(group))
        return std::nullopt;
    return message("no se sabe cuál es tu carpeta: falta HOME");
}

std::optional<std::string> whyNoContainer(const foundation::Environment& environment) {
    const std::string& group = nurva::GrupoDeApps::id(environment);
    if (environment.fileManager.containerURL(group))
        return std::nullopt;
    return whyNoPlace(group).value_or(
        message("no existe el contenedor del grupo %@; abre Nurva una vez", {group}));
}

std::optional<std::string> whyNoSnapshot(const foundation::Environment& environment,
                                         const std::optional<std::string>& given) {
    const std::string& group = nurva::GrupoDeApps::id(environment);
    const auto container = environment.fileManager.containerURL(group);
    if (!container)
        return whyNoContainer(environment);
    const std::filesystem::path file = *container / nurva::archivoDeEstado;
    const auto report = reportOn<nurva::EstadoParaWidgets>(environment.fileManager, file);
    if (!report.refusal)
        return std::nullopt;
    return text(given.value_or(file.string()), *report.refusal);
}

}  // namespace cli

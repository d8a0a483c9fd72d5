#include "enlace/Buzon.hpp"

#include "peticiones/Pedir.hpp"
#include "platform/foundation/files/FileError.hpp"
#include "platform/foundation/files/FileIdentity.hpp"
#include "platform/foundation/files/ReadFile.hpp"
#include "platform/foundation/json/JSONDecoder.hpp"
#include "platform/foundation/notifications/NotificationObserver.hpp"

#include <exception>
#include <optional>
#include <string>
#include <utility>

namespace nurva {

using foundation::FileIdentity;
using GrupoDeApps::Peticion;

/// A notification says that something waits, not what: two of them may stand for one request, and
/// one for the request before where the writing failed. So what counts is whether the file is new.
struct Buzon::Lector {
    Lector(const std::filesystem::path& contenedor, AlLlegar suAlLlegar, AlRechazar suAlRechazar)
        : archivo(contenedor / GrupoDeApps::archivoDePeticion),
          alLlegar(std::move(suAlLlegar)),
          alRechazar(std::move(suAlRechazar)),
          leido(FileIdentity::of(archivo)),
          oyente(GrupoDeApps::nombreDeNotificacion(), [this] { entregar(); }) {}

    void entregar() {
        if (const auto peticion = peticionNueva())
            alLlegar(*peticion);
    }

    std::optional<Peticion> peticionNueva() {
        try {
            const auto datos = datosNuevos();
            return datos ? std::optional(foundation::JSONDecoder().decode<Peticion>(*datos))
                         : std::nullopt;
        } catch (const foundation::FileError& error) {
            return rechazada(error);
        } catch (const foundation::DecodingError& error) {
            return rechazada(error);
        }
    }

    std::nullopt_t rechazada(const std::exception& error) const {
        if (alRechazar)
            alRechazar(error.what());
        return std::nullopt;
    }

    /// What the file holds, if it is not the one read last. Read again where it was replaced
    /// meanwhile, so that what is remembered is what was read.
    std::optional<std::string> datosNuevos() {
        std::optional<std::string> datos;
        for (auto ahora = FileIdentity::of(archivo); ahora && ahora != leido;
             ahora = FileIdentity::of(archivo)) {
            leido = ahora;
            datos = foundation::readFile(archivo);
        }
        return datos;
    }

    std::filesystem::path archivo;
    AlLlegar alLlegar;
    AlRechazar alRechazar;
    std::optional<FileIdentity> leido;
    foundation::NotificationObserver oyente;
};

Buzon::Buzon(const std::filesystem::path& contenedor, AlLlegar alLlegar, AlRechazar alRechazar)
    : lector_(std::make_unique<Lector>(contenedor, std::move(alLlegar), std::move(alRechazar))) {}

Buzon::~Buzon() = default;

bool Buzon::atender() {
    return lector_->oyente.process();
}

int Buzon::descriptor() const {
    return lector_->oyente.descriptor();
}

short Buzon::eventos() const {
    return lector_->oyente.events();
}

}  // namespace nurva

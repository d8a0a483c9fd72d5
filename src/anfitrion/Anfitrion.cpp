#include "anfitrion/Anfitrion.hpp"

#include "anfitrion/Aplicar.hpp"
#include "estado/CargarEstado.hpp"
#include "platform/foundation/files/FileError.hpp"
#include "platform/foundation/json/JSONEncoder.hpp"
#include "platform/widgets/WidgetCenter.hpp"

#include <algorithm>
#include <string_view>
#include <utility>

namespace anfitrion {

using nurva::GrupoDeApps::Peticion;

namespace {

/// A snapshot is published again long before the widgets take it for that of a closed application.
constexpr double segundosEntrePublicaciones = 300;

std::string_view motivo(Rechazo rechazo) {
    switch (rechazo) {
        case Rechazo::ninguno:
            break;
        case Rechazo::noSeDejaCambiar:
            return "rechazada: los widgets no pueden cambiar nada: %@";
        case Rechazo::appDesconocida:
            return "rechazada: no hay ninguna app con ese id: %@";
        case Rechazo::perfilDesconocido:
            return "rechazada: no hay ningún perfil con ese id: %@";
        case Rechazo::nivelFueraDeRango:
            return "rechazada: el nivel va de 0 a 1: %@";
    }
    return {};
}

}  // namespace

Anfitrion::Anfitrion(Escena escena,
                     std::filesystem::path contenedor,
                     const foundation::Environment& entorno,
                     Aviso aviso)
    : entorno_(entorno),
      aviso_(std::move(aviso)),
      pasos_(std::move(escena.pasos)),
      estado_(std::move(escena.inicial)),
      contenedor_(std::move(contenedor)),
      ultimoPaso_(entorno.clock.now()) {
    publicar();
}

void Anfitrion::atender(const Peticion& peticion) {
    const Rechazo rechazo = aplicar(peticion, estado_);
    if (rechazo == Rechazo::ninguno)
        publicar();
    else
        aviso_(motivo(rechazo), {foundation::JSONEncoder().encode(peticion)});
}

void Anfitrion::rechazar(const std::string& porQue) const {
    aviso_("no se puede leer la petición: %@", {porQue});
}

void Anfitrion::seguir() {
    const foundation::Date ahora = entorno_.clock.now();
    bool algo = ahora.timeIntervalSince(estado_.cuando) >= segundosEntrePublicaciones;
    while (!pasos_.empty() && ahora.timeIntervalSince(ultimoPaso_) >= pasos_[siguiente_].segundos) {
        ultimoPaso_ = ultimoPaso_.addingTimeInterval(pasos_[siguiente_].segundos);
        pasos_[siguiente_].cambio(estado_);
        siguiente_ = (siguiente_ + 1) % pasos_.size();
        algo = true;
    }
    if (algo)
        publicar();
}

double Anfitrion::segundosHastaSeguir() const {
    const foundation::Date ahora = entorno_.clock.now();
    double espera = segundosEntrePublicaciones - ahora.timeIntervalSince(estado_.cuando);
    if (!pasos_.empty())
        espera =
            std::min(espera, pasos_[siguiente_].segundos - ahora.timeIntervalSince(ultimoPaso_));
    // Where the clock was set back, what is written may be dated far ahead.
    return std::clamp(espera, 0.0, segundosEntrePublicaciones);
}

void Anfitrion::publicar() {
    estado_.cuando = entorno_.clock.now();
    const std::filesystem::path archivo = contenedor_ / nurva::archivoDeEstado;
    try {
        entorno_.fileManager.writeAtomically(foundation::JSONEncoder().encode(estado_), archivo);
    } catch (const foundation::FileError& error) {
        aviso_("no se puede publicar el estado: %@", {std::string(error.what())});
        return;
    }
    widgets::WidgetCenter::reloadAllTimelines();
}

}  // namespace anfitrion

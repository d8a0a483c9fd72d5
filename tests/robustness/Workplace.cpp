#include "robustness/Workplace.hpp"

#include "estado/CargarEstado.hpp"
#include "peticiones/Pedir.hpp"
#include "platform/foundation/files/ReadFile.hpp"
#include "platform/foundation/json/JSONDecoder.hpp"
#include "platform/foundation/json/JSONEncoder.hpp"

#include <iterator>

using nurva::EstadoParaWidgets;
using nurva::GrupoDeApps::Peticion;

Workplace::Workplace() {
    std::filesystem::create_directories(container_);
    publish(snapshot());
}

EstadoParaWidgets Workplace::snapshot() {
    auto estado = EstadoParaWidgets::porDefecto(support::noon);
    estado.razon = "porque suena jazz en la sala de estar";
    estado.salida = "Audífonos de estudio";
    estado.idioma = "es";
    for (const char* name : {"Plano", "Una voz que se entiende bien", "Música"})
        estado.perfiles.push_back({std::string("perfil-") + name, name, estado.curva, false});
    for (const char* name : {"Firefox", "Un reproductor de nombre largo", "Música"})
        estado.apps.push_back({std::string("org.ejemplo.") + name, name, 0.5, false, true});
    return estado;
}

void Workplace::publish(const EstadoParaWidgets& estado) const {
    files_.writeAtomically(foundation::JSONEncoder().encode(estado),
                           container_ / nurva::archivoDeEstado);
}

std::optional<EstadoParaWidgets> Workplace::loaded() const {
    return nurva::cargarEstado(environment_);
}

void Workplace::send(const Peticion& request) const {
    nurva::GrupoDeApps::pedir(request, environment_);
}

Peticion Workplace::standingRequest() const {
    return foundation::JSONDecoder().decode<Peticion>(
        foundation::readFile(container_ / nurva::GrupoDeApps::archivoDePeticion));
}

std::ptrdiff_t entryCount(const std::filesystem::path& folder) {
    return std::distance(std::filesystem::directory_iterator(folder),
                         std::filesystem::directory_iterator());
}

// A host application in one file: shows the widgets two applications, and lets them set the volume.
#include "enlace/Buzon.hpp"
#include "enlace/Publicador.hpp"

#include <poll.h>

#include <algorithm>
#include <exception>
#include <iostream>
#include <variant>

namespace {

using nurva::AppCorta;
using nurva::EstadoParaWidgets;
using nurva::GrupoDeApps::Peticion;

/// A real one fills this from its mixer, and from its equalizer the fields left alone here.
EstadoParaWidgets estadoInicial() {
    EstadoParaWidgets estado;
    estado.salida = "Audífonos";
    estado.apps = {
        {.id = "musica", .nombre = "Música", .nivel = 0.8, .silenciada = false, .suena = true},
        {.id = "juego", .nombre = "Juego", .nivel = 0.5, .silenciada = false, .suena = false},
    };
    estado.dejaCambiar = true;
    return estado;
}

/// Does what is asked. What makes no sense changes nothing: anybody who may write the file may ask.
void aplicar(const Peticion& peticion, EstadoParaWidgets& estado) {
    const auto* volumen = std::get_if<Peticion::Volumen>(&peticion.caso);
    if (!volumen || !(volumen->nivel >= 0 && volumen->nivel <= 1))
        return;
    const auto app = std::ranges::find(estado.apps, volumen->app, &AppCorta::id);
    if (app != estado.apps.end())
        app->nivel = volumen->nivel;
}

}  // namespace

int main() {
    try {
        EstadoParaWidgets estado = estadoInicial();
        const nurva::Publicador publicador;
        // Before the first snapshot: who sees that may press at once.
        nurva::Buzon buzon(publicador.contenedor(),
                           [&](const Peticion& peticion) { aplicar(peticion, estado); });
        while (buzon.atender()) {
            publicador.publicar(estado);
            // Again after five minutes, since after fifteen the widgets say that nobody is here.
            pollfd listo{.fd = buzon.descriptor(), .events = buzon.eventos(), .revents = 0};
            ::poll(&listo, 1, 5 * 60 * 1000);
        }
        std::cerr << "host: the session bus is gone\n";
    } catch (const std::exception& error) {
        std::cerr << "host: " << error.what() << '\n';
    }
    return 1;
}

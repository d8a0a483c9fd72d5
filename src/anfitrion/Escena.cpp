#include "anfitrion/Escena.hpp"

#include <utility>

namespace anfitrion {

using nurva::AppCorta;
using nurva::EstadoParaWidgets;
using nurva::PerfilCorto;

namespace {

const std::vector<double> curvaDeMusica{4, 3, 2, 1, 0, -0.5, -1, 0, 1, 2, 3, 3.5, 4};
const std::vector<double> curvaDeVoz{-3.5, -2.5, -1.5, -0.5, 0.5, 1.5, 3, 4, 4.5, 3.5, 2, 0.5, -1};
const std::vector<double> curvaDeCine{6, 5, 3.5, 2, 0.5, 0, 0.5, 1.5, 2.5, 2, 1, 1.5, 2.5};
const std::vector<double> curvaDeNoche{-8, -6, -4, -2, -1, 0, 1, 2, 2, 1, 0, -2, -3};

void poner(EstadoParaWidgets& estado, const std::string& id, std::string razon) {
    for (PerfilCorto& perfil : estado.perfiles) {
        perfil.puesto = perfil.id == id;
        if (perfil.puesto) {
            estado.perfil = perfil.nombre;
            estado.curva = perfil.curva;
        }
    }
    estado.razon = std::move(razon);
}

/// What most scenes start from: music on measured headphones.
EstadoParaWidgets estadoComun() {
    EstadoParaWidgets estado;
    estado.perfiles = {{"musica", "Música", curvaDeMusica, false},
                       {"voz", "Voz clara", curvaDeVoz, false},
                       {"cine", "Cine", curvaDeCine, false},
                       {"noche", "Noche", curvaDeNoche, false}};
    poner(estado, "musica", "Suena música");
    estado.salida = "Audífonos de Marta";
    estado.salidaMedida = true;
    estado.cuartoAhora = 2.4;
    estado.cuartoAntes = 6.3;
    estado.medidoHace = "hace 3 días";
    estado.salidasSinMedir = 2;
    estado.apps = {{"org.ejemplo.musica", "Música", 0.8, false, true},
                   {"org.ejemplo.navegador", "Navegador", 0.45, false, false},
                   {"org.ejemplo.mensajes", "Mensajes", 0.6, true, false}};
    estado.dejaCambiar = true;
    return estado;
}

Escena musica() {
    return {"musica",
            estadoComun(),
            {{20,
              [](auto& e) {
                  poner(e, "voz", "Suena un pódcast");
                  e.apps[1].suena = true;
              }},
             {20, [](auto& e) {
                  poner(e, "musica", "Suena música");
                  e.apps[1].suena = false;
              }}}};
}

Escena reunion() {
    EstadoParaWidgets estado = estadoComun();
    poner(estado, "voz", "Estás en una llamada con tres personas");
    estado.apps = {{"org.ejemplo.llamadas", "Llamadas", 0.9, false, true},
                   {"org.ejemplo.musica", "Música", 0.2, true, false},
                   {"org.ejemplo.navegador", "Navegador", 0.45, false, false}};
    return {"reunion",
            std::move(estado),
            {{15, [](auto& e) { e.apps[2].suena = true; }},
             {5, [](auto& e) { e.apps[2].suena = false; }}}};
}

Escena muchas() {
    EstadoParaWidgets estado = estadoComun();
    estado.apps.clear();
    for (int i = 1; i <= 12; ++i) {
        const std::string numero = std::to_string(i);
        estado.apps.push_back(
            {"org.ejemplo.app" + numero, "Aplicación " + numero, i / 12.0, i % 5 == 0, i % 2 == 0});
    }
    return {"muchas", std::move(estado), {}};
}

Escena soloMirar() {
    EstadoParaWidgets estado = estadoComun();
    estado.dejaCambiar = false;
    return {"solo-mirar", std::move(estado), {}};
}

Escena sinMedir() {
    EstadoParaWidgets estado = estadoComun();
    estado.salida = "Bocinas de la sala";
    estado.salidaMedida = false;
    estado.cuartoAhora.reset();
    estado.cuartoAntes.reset();
    estado.medidoHace = "";
    estado.salidasSinMedir = 3;
    return {"sin-medir", std::move(estado), {}};
}

Escena nombresLargos() {
    EstadoParaWidgets estado = estadoComun();
    estado.perfiles[0].nombre = "Música para trabajar sin distraerse";
    poner(estado, "musica", "Suena una lista de reproducción con un nombre que no se acaba nunca");
    estado.salida = "Los audífonos inalámbricos nuevos de Marta en la sala de arriba";
    estado.medidoHace = "hace mucho más de tres semanas";
    estado.apps = {{"a", "Un reproductor de música muy completo", 0.5, false, true},
                   {"b", "مشغل الموسيقى", 0.7, false, true},
                   {"c", "🎧 Audio", 0.3, true, false}};
    return {"nombres-largos", std::move(estado), {}};
}

}  // namespace

std::vector<Escena> escenas() {
    return {musica(), reunion(), muchas(), soloMirar(), sinMedir(), nombresLargos()};
}

}  // namespace anfitrion

#include "anfitrion/Aplicar.hpp"

#include <algorithm>

namespace anfitrion {

using nurva::EstadoParaWidgets;
using nurva::GrupoDeApps::Peticion;

namespace {

template <class Elemento>
Elemento* conId(std::vector<Elemento>& elementos, const std::string& id) {
    const auto hallado = std::find_if(elementos.begin(), elementos.end(),
                                      [&](const Elemento& elemento) { return elemento.id == id; });
    return hallado == elementos.end() ? nullptr : &*hallado;
}

struct Aplicador {
    EstadoParaWidgets& estado;

    Rechazo operator()(const Peticion::PonerPerfil& peticion) const {
        const nurva::PerfilCorto* elegido = conId(estado.perfiles, peticion._0);
        if (!elegido)
            return Rechazo::perfilDesconocido;
        for (nurva::PerfilCorto& perfil : estado.perfiles)
            perfil.puesto = &perfil == elegido;
        estado.perfil = elegido->nombre;
        estado.curva = elegido->curva;
        estado.razon = "Lo pusiste tú";
        estado.automatico = false;
        return Rechazo::ninguno;
    }

    Rechazo operator()(const Peticion::AlternarEncendido&) const {
        estado.prendido = !estado.prendido;
        return Rechazo::ninguno;
    }

    Rechazo operator()(const Peticion::Silenciar& peticion) const {
        nurva::AppCorta* app = conId(estado.apps, peticion.app);
        if (!app)
            return Rechazo::appDesconocida;
        app->silenciada = peticion.si;
        return Rechazo::ninguno;
    }

    Rechazo operator()(const Peticion::Volumen& peticion) const {
        nurva::AppCorta* app = conId(estado.apps, peticion.app);
        if (!app)
            return Rechazo::appDesconocida;
        if (!(peticion.nivel >= 0 && peticion.nivel <= 1))
            return Rechazo::nivelFueraDeRango;
        app->nivel = peticion.nivel;
        return Rechazo::ninguno;
    }
};

}  // namespace

Rechazo aplicar(const Peticion& peticion, EstadoParaWidgets& estado) {
    if (!estado.dejaCambiar)
        return Rechazo::noSeDejaCambiar;
    return std::visit(Aplicador{estado}, peticion.caso);
}

}  // namespace anfitrion

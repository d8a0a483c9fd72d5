#pragma once

#include "estado/EstadoParaWidgets.hpp"

#include <functional>
#include <string>
#include <vector>

namespace anfitrion {

/// Something that happens by itself while a scene plays.
struct Paso {
    double segundos = 0;  // after the step before, or the start
    std::function<void(nurva::EstadoParaWidgets&)> cambio;
};

/// A script for the demo host application: how it starts, and what happens over and over.
struct Escena {
    std::string nombre;
    nurva::EstadoParaWidgets inicial;  // its date is set whenever it is published
    std::vector<Paso> pasos;
};

/// All scenes; the first is played where none is named.
std::vector<Escena> escenas();

}  // namespace anfitrion

#pragma once

#include "estado/EstadoParaWidgets.hpp"

#include <optional>
#include <string>
#include <vector>

namespace nurva {

/// One state in which a widget is shown: in the golden files, and in the pictures of the
/// documentation.
struct Muestra {
    std::string nombre;   // of its golden files, without the folder
    std::string leyenda;  // what it shows, for the page of all faces
    std::string kind;
    std::optional<EstadoParaWidgets> estado;
    std::string idiomaDelSistema = "es";
    std::string locale = "es_ES";
};

/// Every state worth looking at of every widget.
std::vector<Muestra> escaparate();

}  // namespace nurva

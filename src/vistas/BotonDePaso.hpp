#pragma once

#include "platform/views/view/View.hpp"

#include <string>

namespace nurva {

/// A small plus or minus that moves an application's level by a tenth.
struct BotonDePaso {
    std::string clave;  // of the application
    double nivel = 0;
    bool subir = false;
    bool activo = false;

    views::View body() const;
};

/// The level one step up or down from another, within 0 and 1.
double nivelDePaso(double nivel, bool subir);

}  // namespace nurva

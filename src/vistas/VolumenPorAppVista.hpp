#pragma once

#include "estado/EstadoParaWidgets.hpp"
#include "platform/views/view/View.hpp"

#include <optional>

namespace nurva {

/// The applications with their volume, one a row, each with what changes it.
struct VolumenPorAppVista {
    std::optional<EstadoParaWidgets> e;

    views::View body() const;
};

/// Whether a level comes to a whole number of per cent within 64 bits.
bool tienePorciento(double nivel);

/// A level in per cent, halves away from zero, as "45%". A level that has none stops the process
/// with a message.
std::string porciento(double nivel);

}  // namespace nurva

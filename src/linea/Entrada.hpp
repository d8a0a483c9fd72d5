#pragma once

#include "estado/EstadoParaWidgets.hpp"
#include "platform/foundation/Date.hpp"

#include <optional>

namespace nurva {

/// An entry of a widget's timeline: shown from `date` on.
struct Entrada {
    foundation::Date date;
    std::optional<EstadoParaWidgets> estado;  // absent when no snapshot could be read
    bool operator==(const Entrada&) const = default;
};

inline const std::optional<EstadoParaWidgets>& state(const Entrada& entrada) {
    return entrada.estado;
}

}  // namespace nurva

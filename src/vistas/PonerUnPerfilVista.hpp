#pragma once

#include "estado/EstadoParaWidgets.hpp"
#include "platform/views/view/View.hpp"

#include <optional>

namespace nurva {

/// The profiles as tiles to choose from, and the switch of the equalizer.
struct PonerUnPerfilVista {
    std::optional<EstadoParaWidgets> e;

    views::View body() const;
};

}  // namespace nurva

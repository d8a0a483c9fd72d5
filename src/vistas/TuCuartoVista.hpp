#pragma once

#include "estado/EstadoParaWidgets.hpp"
#include "platform/views/view/View.hpp"

#include <optional>

namespace nurva {

/// How far the room is corrected on the current output, and how many outputs are not measured yet.
struct TuCuartoVista {
    std::optional<EstadoParaWidgets> e;

    views::View body() const;
};

}  // namespace nurva

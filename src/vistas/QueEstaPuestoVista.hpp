#pragma once

#include "estado/EstadoParaWidgets.hpp"
#include "platform/views/view/View.hpp"

#include <optional>

namespace nurva {

/// What is on, at a glance: whether the equalizer is, its curve, the profile, why, and on which
/// output.
struct QueEstaPuestoVista {
    std::optional<EstadoParaWidgets> e;

    views::View body() const;
};

}  // namespace nurva

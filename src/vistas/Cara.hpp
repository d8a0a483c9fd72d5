#pragma once

#include "estado/EstadoParaWidgets.hpp"
#include "platform/foundation/Date.hpp"
#include "platform/views/view/View.hpp"

#include <functional>
#include <optional>

namespace nurva {

/// Age in seconds from which a snapshot says that the host application is closed.
inline constexpr double segundosDeVigencia = 900;

/// Whether a snapshot is current at a moment. One from the future is; one whose age is no number is
/// not.
bool vigente(const EstadoParaWidgets& e, foundation::Date ahora);

/// What every widget does around its own content: takes language and accent from the snapshot,
/// shows the content while the snapshot is current and `SinDatos` otherwise, on the widget
/// background.
views::View cara(const std::optional<EstadoParaWidgets>& e,
                 const std::function<views::View(const EstadoParaWidgets&)>& contenido);

}  // namespace nurva

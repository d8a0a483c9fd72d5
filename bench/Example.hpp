#pragma once

#include "estado/EstadoParaWidgets.hpp"
#include "platform/views/scene/Scene.hpp"

/// What the benchmarks show: the snapshot that comes with the sources, and its faces.
namespace example {

/// The snapshot, with a fourth application, as if written just now.
nurva::EstadoParaWidgets snapshot();

/// The faces of a snapshot, laid out as on the desktop.
views::Scene volume(const nurva::EstadoParaWidgets& snapshot);
views::Scene whatIsOn(const nurva::EstadoParaWidgets& snapshot);

}  // namespace example

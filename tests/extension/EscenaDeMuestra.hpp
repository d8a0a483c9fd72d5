#pragma once

#include "extension/Escaparate.hpp"
#include "platform/canvas/FontLibrary.hpp"
#include "platform/views/scene/Scene.hpp"

namespace nurva {

/// Pixels per point of the pictures.
inline constexpr double escala = 2;

/// The widget's face in this state, all the way from the snapshot's file, in real fonts.
views::Scene escenaDe(const Muestra& muestra, canvas::FontLibrary& fuentes);

}  // namespace nurva

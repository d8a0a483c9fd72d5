#pragma once

#include "platform/views/geometry/Color.hpp"

#include <cstdint>

/// The palette of the widgets, the same under a light and a dark desktop. sRGB, opaque.
namespace nurva::WO {

inline constexpr views::Color fondo{0.086, 0.098, 0.106};    // card
inline constexpr views::Color texto{0.91, 0.922, 0.925};     // primary text
inline constexpr views::Color texto2{0.596, 0.627, 0.643};   // secondary text
inline constexpr views::Color texto3{0.4, 0.431, 0.447};     // labels
inline constexpr views::Color ambar{0.949, 0.702, 0.298};    // what wants attention
inline constexpr views::Color control{0.122, 0.137, 0.149};  // controls and tracks
inline constexpr views::Color filete{0.165, 0.184, 0.2};     // borders and rules

/// The accent where no snapshot gives one.
inline constexpr std::uint32_t acentoHexInicial = 0x5CE49A;

/// Accent of the entry being drawn, 0xRRGGBB; the high byte is ignored. One value for the process:
/// each view build sets it first, and view builds take turns.
inline std::uint32_t acentoHex = acentoHexInicial;

/// The colour that `acentoHex` stands for now.
views::Color acento();

}  // namespace nurva::WO

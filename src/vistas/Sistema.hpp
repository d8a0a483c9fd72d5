#pragma once

#include "platform/views/text/Font.hpp"

namespace nurva {

/// The system face at a size in points.
constexpr views::Font sistema(double puntos,
                              views::FontWeight peso = views::FontWeight::regular,
                              views::FontDesign diseno = views::FontDesign::standard) {
    return {.size = puntos, .weight = peso, .design = diseno};
}

}  // namespace nurva

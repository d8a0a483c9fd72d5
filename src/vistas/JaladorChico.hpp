#pragma once

#include "platform/views/view/View.hpp"

#include <optional>
#include <string>

namespace nurva {

/// A thin bar that shows a level, and whose tenths set it when they are pressed.
struct JaladorChico : views::Modifiers<JaladorChico> {
    double nivel = 0;  // 0 to 1; drawn within these bounds
    bool silenciada = false;
    std::optional<std::string> clave;  // of the application; without it the bar is for looking only
    bool puedeCambiar = false;

    views::View body() const;
};

/// The part of the bar that is filled for a level: 0 to 1.
double fraccionLlena(double nivel);

}  // namespace nurva

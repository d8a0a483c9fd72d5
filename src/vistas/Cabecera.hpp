#pragma once

#include "platform/views/view/View.hpp"

#include <string>

namespace nurva {

/// The row that heads a widget: its label, and what stands at the other end.
struct Cabecera {
    std::string rotulo;  // as it is written
    views::View alFinal;

    views::View body() const;
};

}  // namespace nurva

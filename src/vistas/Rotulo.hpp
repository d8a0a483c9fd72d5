#pragma once

#include "platform/views/view/View.hpp"

#include <string>

namespace nurva {

/// The small label in capitals that heads a widget; `texto` comes as it is written.
struct Rotulo {
    std::string texto;

    views::View body() const;
};

}  // namespace nurva

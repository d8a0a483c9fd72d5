#pragma once

#include "platform/views/view/View.hpp"

namespace nurva {

/// What a widget shows without a current snapshot; `cerrado`: the host application has been there,
/// and has been closed.
struct SinDatos {
    bool cerrado = false;

    views::View body() const;
};

}  // namespace nurva

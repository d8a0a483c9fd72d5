#pragma once

#include "platform/views/layout/Alignment.hpp"

#include <optional>

namespace views {

/// Lengths that a view is given whatever it wants; an absent one is the view's own. In points.
struct FixedFrame {
    std::optional<double> width;
    std::optional<double> height;
    Alignment alignment;
};

/// Bounds within which a view takes what it is offered; `maxWidth` infinity takes all. In points.
struct FlexibleFrame {
    std::optional<double> minWidth;
    std::optional<double> maxWidth;
    std::optional<double> minHeight;
    std::optional<double> maxHeight;
    Alignment alignment;
};

}  // namespace views

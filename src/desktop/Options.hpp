#pragma once

#include "widgethost/Session.hpp"

#include <optional>

namespace desktop {

/// What the command line of the widget host says.
struct Options {
    bool windows = false;
    bool gallery = false;
    std::optional<double> scale;  // pixels per point
    widgethost::SessionOptions session;

    /// Throws std::invalid_argument with a text for the user.
    static Options of(int argumentCount, char** arguments);
};

}  // namespace desktop

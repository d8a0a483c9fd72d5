#pragma once

#include <filesystem>
#include <optional>
#include <string>

namespace desktop {

/// What the command line of the widget host says.
struct Options {
    bool windows = false;
    bool gallery = false;
    std::optional<double> scale;  // pixels per point
    std::filesystem::path extension;

    /// Throws std::invalid_argument with a text for the user.
    static Options of(int argumentCount, char** arguments);
};

}  // namespace desktop

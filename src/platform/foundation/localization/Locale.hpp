#pragma once

#include "platform/foundation/EnvironmentVariables.hpp"

#include <string>

namespace foundation {

/// The customs of a region for writing numbers, by its identifier such as "es_MX".
struct Locale {
    std::string identifier;

    /// The user's, from the first set of LC_ALL, LC_NUMERIC and LANG; the plain "C" one without
    /// any.
    static Locale current(
        const EnvironmentVariables& variables = EnvironmentVariables::ofProcess());

    friend bool operator==(const Locale&, const Locale&) = default;
};

}  // namespace foundation

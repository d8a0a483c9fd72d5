#pragma once

#include <exception>
#include <string>

namespace foundation {

/// Why a value could not be encoded: JSON has no form for it (a number that is not finite, a string
/// that is not UTF-8).
struct EncodingError : std::exception {
    enum class Kind { invalidValue };

    EncodingError(Kind kind, std::string codingPath, std::string debugDescription);

    const char* what() const noexcept override;

    Kind kind;
    std::string
        codingPath;  ///< keys and indices joined with dots ("apps.0.nivel"); empty at the top
    std::string debugDescription;
};

}  // namespace foundation

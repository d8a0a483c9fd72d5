#pragma once

#include <exception>
#include <string>
#include <string_view>

namespace foundation {

/// Why a text could not be decoded.
struct DecodingError : std::exception {
    enum class Kind {
        keyNotFound,    ///< a required key is missing
        typeMismatch,   ///< a value of another JSON type stands there
        valueNotFound,  ///< null stands where a value is required
        dataCorrupted,  ///< the text is not valid JSON, or a number does not fit its type
    };

    DecodingError(Kind kind, std::string codingPath, std::string debugDescription);

    /// The missing key belongs to no path: `codingPath` is the object that lacks it.
    static DecodingError keyNotFound(std::string_view key, std::string codingPath);

    /// Of text that is not JSON. Such text has no path.
    static DecodingError malformed();

    const char* what() const noexcept override;

    /// Where the fault is, for a reader: the coding path with the missing key appended.
    std::string place() const;

    Kind kind;
    std::string
        codingPath;  ///< keys and indices joined with dots ("apps.0.nivel"); empty at the top
    std::string missingKey;  ///< of keyNotFound only
    std::string debugDescription;
};

/// The kind as it is spelled in the code, such as "keyNotFound".
std::string_view name(DecodingError::Kind kind);

}  // namespace foundation

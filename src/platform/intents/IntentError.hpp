#pragma once

#include <exception>
#include <string>
#include <string_view>

namespace intents {

/// Why an action cannot be run as it is named. Nothing of it has been run.
struct IntentError : std::exception {
    enum class Kind {
        unknownAction,      ///< no action has this identifier
        missingParameter,   ///< a parameter of the action has no value
        unknownParameter,   ///< the action has no parameter of this name
        repeatedParameter,  ///< a parameter has several values
        wrongType,          ///< the value is of another type than the parameter
    };

    IntentError(Kind kind, std::string action, std::string parameter = {});

    const char* what() const noexcept override;

    Kind kind;
    std::string action;
    std::string parameter;  ///< empty of unknownAction

  private:
    std::string text_;
};

/// The kind as it is spelled in the code, such as "missingParameter".
std::string_view name(IntentError::Kind kind);

}  // namespace intents

#pragma once

#include <stdexcept>
#include <string>

namespace cli {

enum class ExitStatus { done = 0, couldNot = 1, wrongUse = 2 };

/// Ends a command: what was wrong and what to do about it, in the user's language.
struct Failure : std::runtime_error {
    Failure(ExitStatus exitStatus, const std::string& text)
        : std::runtime_error(text), status(exitStatus) {}
    ExitStatus status;
};

}  // namespace cli

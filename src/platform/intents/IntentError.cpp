#include "platform/intents/IntentError.hpp"

#include <array>
#include <utility>

namespace intents {

IntentError::IntentError(Kind itsKind, std::string itsAction, std::string itsParameter)
    : kind(itsKind),
      action(std::move(itsAction)),
      parameter(std::move(itsParameter)),
      text_(std::string(name(kind)) + ": " + action + (parameter.empty() ? "" : "." + parameter)) {}

const char* IntentError::what() const noexcept {
    return text_.c_str();
}

std::string_view name(IntentError::Kind kind) {
    constexpr std::array<std::string_view, 5> names{
        "unknownAction", "missingParameter", "unknownParameter", "repeatedParameter", "wrongType"};
    return names.at(static_cast<std::size_t>(kind));
}

}  // namespace intents

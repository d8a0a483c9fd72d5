#include "platform/intents/ArchivedFromText.hpp"

#include "platform/foundation/text/UTF8.hpp"
#include "platform/intents/IntentError.hpp"

#include <charconv>
#include <cmath>
#include <optional>
#include <string_view>

namespace intents {
namespace {

using Type = ParameterDescription::Type;

std::optional<ParameterValue> truth(std::string_view text) {
    if (text == "true" || text == "sí" || text == "si")
        return true;
    if (text == "false" || text == "no")
        return false;
    return std::nullopt;
}

std::optional<ParameterValue> number(std::string_view text) {
    double value = 0;
    const char* const end = text.data() + text.size();
    const auto read = std::from_chars(text.data(), end, value);
    if (read.ec != std::errc() || read.ptr != end || !std::isfinite(value))
        return std::nullopt;
    return value;
}

std::optional<ParameterValue> parsed(Type type, std::string_view text) {
    switch (type) {
        case Type::text:
            return foundation::isUTF8(text) ? std::optional(std::string(text)) : std::nullopt;
        case Type::truth:
            return truth(text);
        case Type::number:
            break;
    }
    return number(text);
}

}  // namespace

ArchivedAction archivedFromText(const IntentDescription& description,
                                std::span<const std::string> assignments) {
    using Kind = IntentError::Kind;
    ArchivedAction action{.identifier = std::string(description.identifier)};
    for (const std::string& assignment : assignments) {
        const std::size_t equals = assignment.find('=');
        const std::string name = assignment.substr(0, equals);
        const ParameterDescription* const parameter = description.parameter(name);
        if (!parameter)
            throw IntentError(Kind::unknownParameter, action.identifier, name);
        if (equals == std::string::npos)
            throw IntentError(Kind::missingParameter, action.identifier, name);
        const auto value = parsed(parameter->type, std::string_view(assignment).substr(equals + 1));
        if (!value)
            throw IntentError(Kind::wrongType, action.identifier, name);
        action.parameters.emplace_back(name, *value);
    }
    return action;
}

}  // namespace intents

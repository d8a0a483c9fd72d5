#include "platform/intents/IntentDescription.hpp"

#include "platform/intents/IntentError.hpp"

#include <algorithm>

namespace intents {

const ParameterDescription* IntentDescription::parameter(std::string_view name) const {
    const auto found = std::ranges::find(parameters, name, &ParameterDescription::name);
    return found == parameters.end() ? nullptr : &*found;
}

void require(const ArchivedAction& action, const IntentDescription& description) {
    using Kind = IntentError::Kind;
    const auto count = [&](std::string_view name) {
        return std::ranges::count_if(action.parameters,
                                     [&](const auto& given) { return given.first == name; });
    };
    for (const auto& [name, value] : action.parameters) {
        const ParameterDescription* parameter = description.parameter(name);
        if (!parameter)
            throw IntentError(Kind::unknownParameter, action.identifier, name);
        if (count(name) > 1)
            throw IntentError(Kind::repeatedParameter, action.identifier, name);
        if (value.index() != static_cast<std::size_t>(parameter->type))
            throw IntentError(Kind::wrongType, action.identifier, name);
    }
    for (const ParameterDescription& parameter : description.parameters)
        if (count(parameter.name) == 0)
            throw IntentError(Kind::missingParameter, action.identifier,
                              std::string(parameter.name));
}

}  // namespace intents

#include "platform/foundation/EnvironmentVariables.hpp"

#include <unistd.h>

#include <utility>

namespace foundation {

EnvironmentVariables::EnvironmentVariables(std::map<std::string, std::string, std::less<>> values)
    : values_(std::move(values)) {}

EnvironmentVariables EnvironmentVariables::ofProcess() {
    std::map<std::string, std::string, std::less<>> values;
    for (char** entry = environ; entry && *entry; ++entry) {
        const std::string_view text = *entry;
        const std::size_t equals = text.find('=');
        if (equals != std::string_view::npos)
            values.emplace(text.substr(0, equals), text.substr(equals + 1));
    }
    return EnvironmentVariables(std::move(values));
}

std::optional<std::string> EnvironmentVariables::value(std::string_view name) const {
    const auto found = values_.find(name);
    if (found == values_.end() || found->second.empty())
        return std::nullopt;
    return found->second;
}

std::optional<std::string> EnvironmentVariables::firstSet(
    std::initializer_list<std::string_view> names) const {
    for (const std::string_view name : names) {
        if (auto found = value(name))
            return found;
    }
    return std::nullopt;
}

}  // namespace foundation

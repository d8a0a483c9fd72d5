#include "platform/intents/IntentRegistry.hpp"

#include "platform/intents/IntentError.hpp"

#include <algorithm>

namespace intents {

std::vector<IntentDescription> IntentRegistry::descriptions() const {
    std::vector<IntentDescription> all;
    for (const Entry& entry : entries_)
        all.push_back(entry.description);
    return all;
}

const IntentDescription& IntentRegistry::description(std::string_view identifier) const {
    return entry(identifier).description;
}

IntentRegistry::Performance IntentRegistry::performance(const ArchivedAction& action) const {
    const Entry& registered = entry(action.identifier);
    require(action, registered.description);
    return registered.prepare(action);
}

const IntentRegistry::Entry& IntentRegistry::entry(std::string_view identifier) const {
    const auto found = std::ranges::find(
        entries_, identifier, [](const Entry& entry) { return entry.description.identifier; });
    if (found == entries_.end())
        throw IntentError(IntentError::Kind::unknownAction, std::string(identifier));
    return *found;
}

}  // namespace intents

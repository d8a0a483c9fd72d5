#pragma once

#include "platform/intents/IntentDescription.hpp"

#include <functional>
#include <string_view>
#include <vector>

namespace intents {

/// The actions that a program can run, by identifier. Once made, for any thread.
class IntentRegistry {
  public:
    /// An action with its values, ready to run. On any thread.
    using Performance = std::function<IntentResult(const foundation::Environment&)>;

    template <AppIntent... Intents>
    static IntentRegistry of() {
        IntentRegistry registry;
        (registry.add<Intents>(), ...);
        return registry;
    }

    /// Requires that no other action has the identifier.
    template <AppIntent Intent>
    void add() {
        entries_.push_back({describe<Intent>(), [](const ArchivedAction& action) -> Performance {
                                return [intent = restored<Intent>(action)](
                                           const foundation::Environment& environment) {
                                    return intent.perform(environment);
                                };
                            }});
    }

    /// The actions in the order in which they were added.
    std::vector<IntentDescription> descriptions() const;

    /// The action of this identifier. Throws IntentError.
    const IntentDescription& description(std::string_view identifier) const;

    /// A fresh action with the values that were archived. Throws IntentError.
    Performance performance(const ArchivedAction& action) const;

  private:
    struct Entry {
        IntentDescription description;
        Performance (*prepare)(const ArchivedAction& action);
    };

    const Entry& entry(std::string_view identifier) const;

    std::vector<Entry> entries_;
};

}  // namespace intents

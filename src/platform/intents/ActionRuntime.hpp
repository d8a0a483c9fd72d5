#pragma once

#include "platform/foundation/Environment.hpp"
#include "platform/intents/ArchivedAction.hpp"
#include "platform/intents/BackgroundExecutor.hpp"
#include "platform/intents/IntentRegistry.hpp"

#include <functional>
#include <future>

namespace intents {

/// Runs the actions that controls name, in the background and several at a time. Its end waits for
/// all of them. Any thread.
class ActionRuntime {
  public:
    /// Requires that the registry outlives it.
    explicit ActionRuntime(const IntentRegistry& registry) : registry_(registry) {}

    /// Makes the action afresh, gives it its values and lets it perform in the background. Throws
    /// IntentError where it cannot be run; what the action itself throws is in the future. Then
    /// `whenDone` is called, in the background too.
    std::future<IntentResult> perform(const ArchivedAction& action,
                                      const foundation::Environment& environment,
                                      std::function<void()> whenDone = {});

  private:
    const IntentRegistry& registry_;
    BackgroundExecutor executor_;
};

}  // namespace intents

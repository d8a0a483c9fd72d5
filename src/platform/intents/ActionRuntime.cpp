#include "platform/intents/ActionRuntime.hpp"

#include <utility>

namespace intents {

std::future<IntentResult> ActionRuntime::perform(const ArchivedAction& action,
                                                 const foundation::Environment& environment) {
    std::packaged_task<IntentResult()> performance(
        [perform = registry_.performance(action), environment] { return perform(environment); });
    std::future<IntentResult> result = performance.get_future();
    executor_.run(std::packaged_task<void()>(std::move(performance)));
    return result;
}

}  // namespace intents

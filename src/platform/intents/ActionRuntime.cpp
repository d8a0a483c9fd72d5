#include "platform/intents/ActionRuntime.hpp"

#include <utility>

namespace intents {

std::future<IntentResult> ActionRuntime::perform(const ArchivedAction& action,
                                                 const foundation::Environment& environment,
                                                 std::function<void()> whenDone) {
    std::packaged_task<IntentResult()> performance(
        [perform = registry_.performance(action), environment] { return perform(environment); });
    std::future<IntentResult> result = performance.get_future();
    executor_.run(std::packaged_task<void()>(
        [performance = std::move(performance), whenDone = std::move(whenDone)]() mutable {
            performance();
            if (whenDone)
                whenDone();
        }));
    return result;
}

}  // namespace intents

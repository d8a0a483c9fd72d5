#include "platform/intents/BackgroundExecutor.hpp"

#include <utility>

namespace intents {

BackgroundExecutor::BackgroundExecutor(std::size_t threadCount) {
    for (std::size_t i = 0; i < threadCount; ++i)
        threads_.emplace_back([this](const std::stop_token& end) { work(end); });
}

void BackgroundExecutor::run(std::packaged_task<void()> task) {
    {
        const std::lock_guard lock(mutex_);
        tasks_.push_back(std::move(task));
    }
    changed_.notify_one();
}

void BackgroundExecutor::work(const std::stop_token& end) {
    std::unique_lock lock(mutex_);
    while (changed_.wait(lock, end, [this] { return !tasks_.empty(); })) {
        std::packaged_task<void()> task = std::move(tasks_.front());
        tasks_.pop_front();
        lock.unlock();
        task();
        task = {};
        lock.lock();
    }
}

}  // namespace intents

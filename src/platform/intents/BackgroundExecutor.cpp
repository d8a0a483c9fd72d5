#include "platform/intents/BackgroundExecutor.hpp"

#include <utility>

namespace intents {

BackgroundExecutor::BackgroundExecutor(std::size_t threadCount) {
    for (std::size_t i = 0; i < threadCount; ++i)
        threads_.emplace_back([this] { work(); });
}

BackgroundExecutor::~BackgroundExecutor() {
    {
        const std::lock_guard lock(mutex_);
        isEnding_ = true;
    }
    changed_.notify_all();
}

void BackgroundExecutor::run(std::packaged_task<void()> task) {
    {
        const std::lock_guard lock(mutex_);
        tasks_.push_back(std::move(task));
    }
    changed_.notify_one();
}

void BackgroundExecutor::work() {
    std::unique_lock lock(mutex_);
    while (true) {
        changed_.wait(lock, [this] { return isEnding_ || !tasks_.empty(); });
        if (tasks_.empty())
            return;
        std::packaged_task<void()> task = std::move(tasks_.front());
        tasks_.pop_front();
        lock.unlock();
        task();
        task = {};
        lock.lock();
    }
}

}  // namespace intents

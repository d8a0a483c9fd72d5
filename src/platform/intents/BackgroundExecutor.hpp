#pragma once

#include <condition_variable>
#include <cstddef>
#include <deque>
#include <future>
#include <mutex>
#include <thread>
#include <vector>

namespace intents {

/// Runs tasks away from the thread that asks for them, several at a time and begun in the order in
/// which they came. Its end waits until all that it was given has run. Any thread.
class BackgroundExecutor {
  public:
    static constexpr std::size_t usualThreadCount = 4;

    explicit BackgroundExecutor(std::size_t threadCount = usualThreadCount);
    BackgroundExecutor(const BackgroundExecutor&) = delete;
    BackgroundExecutor& operator=(const BackgroundExecutor&) = delete;
    ~BackgroundExecutor();

    void run(std::packaged_task<void()> task);

  private:
    void work();

    std::mutex mutex_;
    std::condition_variable changed_;
    std::deque<std::packaged_task<void()>> tasks_;
    bool isEnding_ = false;
    std::vector<std::jthread> threads_;
};

}  // namespace intents

#pragma once

#include <condition_variable>
#include <cstddef>
#include <deque>
#include <future>
#include <mutex>
#include <stop_token>
#include <thread>
#include <vector>

namespace intents {

/// Runs tasks away from the thread that asks for them, several at a time and begun in the order in
/// which they came. Its end waits until all that it was given has run. Any thread.
class BackgroundExecutor {
  public:
    static constexpr std::size_t usualThreadCount = 4;

    /// Throws std::system_error where the system has no room for so many threads.
    explicit BackgroundExecutor(std::size_t threadCount = usualThreadCount);
    BackgroundExecutor(const BackgroundExecutor&) = delete;
    BackgroundExecutor& operator=(const BackgroundExecutor&) = delete;

    void run(std::packaged_task<void()> task);

  private:
    void work(const std::stop_token& end);

    std::mutex mutex_;
    std::condition_variable_any changed_;
    std::deque<std::packaged_task<void()>> tasks_;
    // Ends first: each thread is told to, and goes once there is no task left.
    std::vector<std::jthread> threads_;
};

}  // namespace intents

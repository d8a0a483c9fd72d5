#include "platform/intents/BackgroundExecutor.hpp"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <unistd.h>

#include <atomic>
#include <barrier>
#include <chrono>
#include <future>
#include <system_error>
#include <thread>
#include <vector>

namespace intents {
namespace {

TEST(BackgroundExecutor, RunsOnAnotherThread) {
    BackgroundExecutor executor;
    std::promise<std::thread::id> ran;
    executor.run(std::packaged_task<void()>([&] { ran.set_value(std::this_thread::get_id()); }));
    EXPECT_NE(ran.get_future().get(), std::this_thread::get_id());
}

TEST(BackgroundExecutor, RunsSeveralTasksAtATime) {
    std::barrier<> meeting(3);
    BackgroundExecutor executor(3);
    for (int task = 0; task < 3; ++task)
        executor.run(std::packaged_task<void()>([&] { meeting.arrive_and_wait(); }));
}

TEST(BackgroundExecutor, BeginsTasksInTheirOrder) {
    std::vector<int> order;
    {
        BackgroundExecutor executor(1);
        for (int task = 0; task < 100; ++task)
            executor.run(std::packaged_task<void()>([&order, task] { order.push_back(task); }));
    }
    ASSERT_EQ(order.size(), 100u);
    for (int task = 0; task < 100; ++task)
        EXPECT_EQ(order[static_cast<std::size_t>(task)], task);
}

TEST(BackgroundExecutor, RunsAllItWasGivenBeforeItEnds) {
    std::atomic<int> ran = 0;
    {
        BackgroundExecutor executor;
        std::vector<std::jthread> askers(4);
        for (auto& asker : askers)
            asker = std::jthread([&] {
                for (int task = 0; task < 50; ++task)
                    executor.run(std::packaged_task<void()>([&] {
                        std::this_thread::sleep_for(std::chrono::microseconds(50));
                        ++ran;
                    }));
            });
    }
    EXPECT_EQ(ran, 200);
}

TEST(BackgroundExecutor, SurvivesATaskThatThrows) {
    BackgroundExecutor executor(1);
    executor.run(std::packaged_task<void()>([] { throw 1; }));
    std::promise<void> ran;
    executor.run(std::packaged_task<void()>([&] { ran.set_value(); }));
    ran.get_future().get();
}

/// Exits with 0 where an executor of more threads than the memory has stacks for says so.
[[noreturn]] void makeTooManyThreads() {
    constexpr unsigned generous = 120;  // seconds
    ::alarm(generous);
    constexpr rlim_t memory = 64 << 20;
    const rlimit limit{.rlim_cur = memory, .rlim_max = memory};
    ::setrlimit(RLIMIT_DATA, &limit);
    try {
        BackgroundExecutor executor(1000);
    } catch (const std::system_error&) {
        ::_exit(0);
    }
    ::_exit(1);
}

TEST(BackgroundExecutorDeathTest, EndsTheThreadsThereAreWhereThereIsNoRoomForAll) {
    if (NURVA_SANITIZED)
        GTEST_SKIP() << "The shadow of a sanitizer is far beyond any limit.";
    EXPECT_EXIT(makeTooManyThreads(), testing::ExitedWithCode(0), "");
}

}  // namespace
}  // namespace intents

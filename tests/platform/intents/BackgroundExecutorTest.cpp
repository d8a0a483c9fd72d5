#include "platform/intents/BackgroundExecutor.hpp"

#include <gtest/gtest.h>

#include <atomic>
#include <barrier>
#include <chrono>
#include <future>
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

}  // namespace
}  // namespace intents

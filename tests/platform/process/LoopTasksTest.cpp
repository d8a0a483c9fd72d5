#include "platform/process/LoopTasks.hpp"

#include <gtest/gtest.h>
#include <poll.h>

#include <thread>
#include <vector>

namespace process {
namespace {

bool isReady(const LoopTasks& tasks) {
    pollfd ready{.fd = tasks.descriptor(), .events = POLLIN, .revents = 0};
    return ::poll(&ready, 1, 0) == 1;
}

TEST(LoopTasks, AreRunInTheirOrderByWhoeverRunsThem) {
    LoopTasks tasks;
    EXPECT_FALSE(isReady(tasks));
    std::vector<int> ran;
    for (int task : {1, 2, 3})
        tasks.add([&ran, task] { ran.push_back(task); });
    EXPECT_TRUE(ran.empty());
    EXPECT_TRUE(isReady(tasks));
    tasks.run();
    EXPECT_EQ(ran, (std::vector{1, 2, 3}));
    EXPECT_FALSE(isReady(tasks));
}

TEST(LoopTasks, MayAddOthersThatWaitForTheNextTime) {
    LoopTasks tasks;
    int ran = 0;
    tasks.add([&] { tasks.add([&] { ++ran; }); });
    tasks.run();
    EXPECT_EQ(ran, 0);
    EXPECT_TRUE(isReady(tasks));
    tasks.run();
    EXPECT_EQ(ran, 1);
}

TEST(LoopTasks, ComeFromManyThreadsAndNoneIsLost) {
    constexpr int count = 2000;
    LoopTasks tasks;
    int ran = 0;
    std::vector<std::jthread> threads(4);
    for (auto& thread : threads)
        thread = std::jthread([&] {
            for (int i = 0; i < count; ++i)
                tasks.add([&ran] { ++ran; });
        });
    while (ran < 4 * count) {
        pollfd ready{.fd = tasks.descriptor(), .events = POLLIN, .revents = 0};
        ASSERT_EQ(::poll(&ready, 1, 10'000), 1);
        tasks.run();
    }
    EXPECT_EQ(ran, 4 * count);
}

}  // namespace
}  // namespace process

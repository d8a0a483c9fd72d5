#include "platform/intents/ActionRuntime.hpp"
#include "platform/intents/IntentError.hpp"
#include "platform/intents/Samples.hpp"
#include "support/World.hpp"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

namespace intents {
namespace {

const IntentRegistry registry = IntentRegistry::of<Note, Fail>();

TEST(ActionRuntime, PerformsAnActionAndSaysWhenItIsDone) {
    const support::World world;
    ActionRuntime runtime(registry);
    EXPECT_EQ(runtime.perform(note, world.environment).get(), IntentResult::result());
    EXPECT_EQ(world.notifications.posted(), std::vector<std::string>{"a 0.500000 yes"});
}

TEST(ActionRuntime, PerformsWhatNobodyWaitsFor) {
    const support::World world;
    {
        ActionRuntime runtime(registry);
        for (int press = 0; press < 20; ++press)
            runtime.perform(note, world.environment);
    }
    EXPECT_EQ(world.notifications.posted().size(), 20u);
}

TEST(ActionRuntime, RefusesBeforeAnythingIsRun) {
    const support::World world;
    ActionRuntime runtime(registry);
    ArchivedAction incomplete = note;
    incomplete.parameters.pop_back();
    EXPECT_THROW(runtime.perform(incomplete, world.environment), IntentError);
    EXPECT_THROW(runtime.perform({.identifier = "Other"}, world.environment), IntentError);
    EXPECT_TRUE(world.notifications.posted().empty());
}

TEST(ActionRuntime, HandsOnWhatTheActionThrows) {
    const support::World world;
    ActionRuntime runtime(registry);
    auto result = runtime.perform({.identifier = "Fail"}, world.environment);
    EXPECT_THROW(result.get(), std::runtime_error);
}

TEST(ActionRuntime, CallsBackOnceTheActionIsDoneHoweverItEnded) {
    const support::World world;
    std::vector<std::size_t> postedBefore;
    const auto press = [&](const ArchivedAction& action) {
        // Its end waits for the call back, which comes after the result.
        ActionRuntime runtime(registry);
        runtime.perform(action, world.environment,
                        [&] { postedBefore.push_back(world.notifications.posted().size()); });
    };
    press(note);
    press({.identifier = "Fail"});
    EXPECT_EQ(postedBefore, (std::vector<std::size_t>{1, 1}));
}

TEST(ActionRuntime, TakesPressesFromManyThreads) {
    const support::World world;
    {
        ActionRuntime runtime(registry);
        std::vector<std::jthread> hands(4);
        for (auto& hand : hands)
            hand = std::jthread([&] {
                for (int press = 0; press < 50; ++press)
                    runtime.perform(note, world.environment);
            });
    }
    EXPECT_EQ(world.notifications.posted().size(), 200u);
}

}  // namespace
}  // namespace intents

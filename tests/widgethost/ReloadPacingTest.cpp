#include "support/Patience.hpp"
#include "widgethost/ReloadPacing.hpp"

#include <glib.h>
#include <gtest/gtest.h>

#include <chrono>
#include <cstddef>
#include <thread>
#include <vector>

namespace widgethost {
namespace {

using namespace std::chrono_literals;

struct Paced : testing::Test {
    /// Whether so many have been passed on, as soon as that may be.
    bool passes(std::size_t count) const {
        const Instant deadline = Instant::clock::now() + support::patience;
        while (passed.size() < count && Instant::clock::now() < deadline)
            g_main_context_iteration(nullptr, FALSE);
        return passed.size() == count;
    }

    /// Asks for "a" until one waits; how many have been passed on. However slow the machine is, one
    /// comes too soon at last.
    std::size_t fill() {
        constexpr std::size_t far = 1'000'000;
        std::size_t before = 0;
        do {
            before = passed.size();
            pacing.ask("a");
        } while (passed.size() > before && before < far);
        return before;
    }

    std::vector<ReloadPacing::Kinds> passed;
    ReloadPacing pacing{[this](const ReloadPacing::Kinds& kinds) { passed.push_back(kinds); }};
};

TEST_F(Paced, PassesOnAFewAtOnce) {
    for (const char* kind : {"a", "", "a", "b"}) {
        const std::size_t before = passed.size();
        pacing.ask(kind);
        ASSERT_EQ(passed.size(), before + 1);
        EXPECT_EQ(passed.back(), ReloadPacing::Kinds{kind});
    }
}

TEST_F(Paced, PutsTogetherWhatComesTooSoon) {
    const std::size_t before = fill();
    for (const char* kind : {"b", "c", "b"})
        pacing.ask(kind);
    ASSERT_EQ(passed.size(), before) << "all of them wait";
    ASSERT_TRUE(passes(before + 1));
    EXPECT_EQ(passed.back(), (ReloadPacing::Kinds{"a", "b", "c"}));
}

TEST_F(Paced, PassesOnOnceWhatIsAskedForWhileSomethingWaits) {
    const std::size_t before = fill();
    std::this_thread::sleep_for(250ms);  // it is time, but nobody has looked
    pacing.ask("b");
    ASSERT_TRUE(passes(before + 1));
    EXPECT_EQ(passed.back(), (ReloadPacing::Kinds{"a", "b"}));
    while (g_main_context_iteration(nullptr, FALSE))
        continue;
    EXPECT_EQ(passed.size(), before + 1);
}

TEST_F(Paced, LetsWhatHasPatienceJoinWhatHasNone) {
    pacing.ask("a", 1h);
    ASSERT_EQ(passed.size(), 0U);
    pacing.ask("b", 2h);
    pacing.ask("c");
    ASSERT_EQ(passed.size(), 1U);
    EXPECT_EQ(passed.back(), (ReloadPacing::Kinds{"a", "b", "c"}));
}

TEST_F(Paced, PassesOnWhatHasPatienceWhenItsTimeHasCome) {
    pacing.ask("a", 2h);
    pacing.ask("b", 5ms);
    ASSERT_EQ(passed.size(), 0U);
    ASSERT_TRUE(passes(1));
    EXPECT_EQ(passed.back(), (ReloadPacing::Kinds{"a", "b"}));
    pacing.ask("c", 5ms);
    EXPECT_TRUE(passes(2));
}

TEST_F(Paced, NeverPassesOnMoreThanTwentyInASecond) {
    const Instant start = Instant::clock::now();
    while (passed.size() < 20) {
        pacing.ask("a");
        g_main_context_iteration(nullptr, FALSE);
    }
    // After four at a time two hundred milliseconds pass, on a clock that counts whole ones.
    EXPECT_GE(Instant::clock::now() - start, 4 * 199ms);
}

}  // namespace
}  // namespace widgethost

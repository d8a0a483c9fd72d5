#include "widgethost/RestartLimit.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace widgethost {
namespace {

using namespace std::chrono_literals;

constexpr Instant start{1h};

/// The starts, in a minute, of what stops at once; something changes again and again in between.
std::vector<Instant> startsWithChangesEvery(std::chrono::milliseconds pause) {
    RestartLimit limit;
    std::vector<Instant> starts;
    for (Instant now = start; now < start + 60s; now += 10ms) {
        if ((now - start) % pause == 0s)
            limit.changed(now);
        if (limit.earliest() > now)
            continue;
        limit.started();
        limit.stopped(now);
        starts.push_back(now);
    }
    return starts;
}

TEST(RestartLimit, AllowsFiveStartsInAnyTenSecondsHoweverOftenSomethingChanges) {
    for (const auto pause : {10ms, 50ms, 100ms, 450ms, 3'600'000ms}) {
        const auto starts = startsWithChangesEvery(pause);
        EXPECT_EQ(starts.size(), 30u) << pause.count();
        for (std::size_t i = 5; i < starts.size(); ++i)
            EXPECT_GE(starts[i] - starts[i - 5], 10s) << pause.count();
    }
}

TEST(RestartLimit, AllowsOneMoreForWhatStands) {
    for (const auto pause : {600ms, 1000ms, 1500ms, 5000ms}) {
        const auto starts = startsWithChangesEvery(pause);
        for (Instant change = start; change + pause < start + 60s; change += pause)
            EXPECT_TRUE(std::ranges::any_of(starts, [&](Instant one) {
                return one >= change && one < change + 1s;
            })) << pause.count();
    }
}

TEST(RestartLimit, AllowsNoMoreThanOneForTheSameChange) {
    for (auto wait = 0ms; wait < 9s; wait += 50ms) {
        RestartLimit limit;
        for (int stop = 0; stop < 5; ++stop)
            limit.stopped(start);
        EXPECT_EQ(limit.earliest(), start + 10s);
        limit.changed(start + wait);
        EXPECT_LT(limit.earliest(), start + wait + 1s);
        limit.started();
        EXPECT_EQ(limit.earliest(), start + 10s);
    }
}

TEST(RestartLimit, KnowsOfWhatChangedBeforeTheStopWasNoticed) {
    RestartLimit limit;
    limit.started();
    limit.changed(start);
    for (int stop = 0; stop < 5; ++stop)
        limit.stopped(start);
    EXPECT_LT(limit.earliest(), start + 1s);
}

TEST(RestartLimit, DoesNotBlameTheExtensionForItsKiller) {
    RestartLimit limit;
    for (int kill = 0; kill < 59; ++kill)
        limit.killed(start);
    EXPECT_LE(limit.earliest(), start);
    limit.killed(start);
    limit.changed(start);
    EXPECT_EQ(limit.earliest(), start + 10s) << "whatever it is to show";
}

}  // namespace
}  // namespace widgethost

#include "platform/foundation/Date.hpp"
#include "platform/foundation/SystemClock.hpp"
#include "support/ManualClock.hpp"

#include <gtest/gtest.h>

#include <chrono>
#include <cmath>
#include <limits>

namespace foundation {
namespace {

TEST(Date, IntervalAndAdditionUndoEachOther) {
    for (int seconds = -2000; seconds <= 2000; ++seconds) {
        const Date start{1000.25};
        const Date later = start.addingTimeInterval(seconds);
        EXPECT_EQ(later.timeIntervalSince(start), seconds);
        EXPECT_EQ(start.timeIntervalSince(later), -seconds);
    }
}

TEST(Date, OrdersByInstant) {
    EXPECT_LT(Date{-1}, Date{0});
    EXPECT_GT(Date{1}, Date{0.5});
    EXPECT_EQ(Date{0.0}, Date{-0.0});
    EXPECT_EQ(Date{}, Date{0});
}

TEST(Date, NaNIsUnorderedAndUnequalToItself) {
    const Date none{std::numeric_limits<double>::quiet_NaN()};
    EXPECT_FALSE(none == none);
    EXPECT_FALSE(none < Date{0});
    EXPECT_FALSE(none >= Date{0});
}

TEST(SystemClock, CountsFromTheFirstSecondOf2001) {
    constexpr double unixSecondsAtReference = 978307200;
    const auto unixSeconds = [] {
        return std::chrono::duration<double>(std::chrono::system_clock::now().time_since_epoch())
            .count();
    };
    const double before = unixSeconds() - unixSecondsAtReference;
    const double now = SystemClock().now().secondsSinceReferenceDate;
    const double after = unixSeconds() - unixSecondsAtReference;
    constexpr double roundingOfTheSubtraction = 1e-6;
    EXPECT_GE(now, before - roundingOfTheSubtraction);
    EXPECT_LE(now, after + roundingOfTheSubtraction);
}

TEST(ManualClock, AnswersInTurnThenStaysAndCounts) {
    const support::ManualClock clock{Date{1}, Date{5}};
    EXPECT_EQ(clock.now(), Date{1});
    EXPECT_EQ(clock.now(), Date{5});
    EXPECT_EQ(clock.now(), Date{5});
    EXPECT_EQ(clock.reads(), 3u);
}

}  // namespace
}  // namespace foundation

#include "widgethost/RateLimit.hpp"

#include <gtest/gtest.h>

namespace widgethost {
namespace {

using namespace std::chrono_literals;

constexpr Instant start{1h};

TEST(RateLimit, LetsAFewHappenAtOnceAndTheNextAfterTheSpan) {
    RateLimit limit(3, 10s);
    for (int i = 0; i < 3; ++i) {
        EXPECT_LE(limit.earliest(), start);
        limit.happens(start + i * 1s);
    }
    EXPECT_EQ(limit.earliest(), start + 10s);
    limit.happens(start + 10s);
    EXPECT_EQ(limit.earliest(), start + 11s);
}

TEST(RateLimit, NeverLetsMoreHappenInAnySpan) {
    RateLimit limit(4, 200ms);
    std::vector<Instant> happened;
    for (Instant now = start; now < start + 5s; now += 1ms)
        if (limit.earliest() <= now) {
            limit.happens(now);
            happened.push_back(now);
        }
    EXPECT_EQ(happened.size(), 100u);
    for (std::size_t i = 4; i < happened.size(); ++i)
        EXPECT_GE(happened[i] - happened[i - 4], 200ms);
}

}  // namespace
}  // namespace widgethost

#include "platform/canvas/RecentlyUsed.hpp"

#include <gtest/gtest.h>

namespace canvas {
namespace {

std::shared_ptr<const int> value(int number) {
    return std::make_shared<const int>(number);
}

TEST(RecentlyUsed, FindsWhatItKeeps) {
    RecentlyUsed<int> kept(10000);
    EXPECT_EQ(kept.find("a"), nullptr);
    kept.keep("a", value(1), 100);
    kept.keep("b", value(2), 100);
    EXPECT_EQ(*kept.find("a"), 1);
    EXPECT_EQ(*kept.find("b"), 2);
}

TEST(RecentlyUsed, LetsGoOfWhatWasNotUsedForLongest) {
    RecentlyUsed<int> kept(1000);
    kept.keep("a", value(1), 300);
    kept.keep("b", value(2), 300);
    const auto held = kept.find("a");
    kept.keep("c", value(3), 300);
    EXPECT_EQ(kept.find("b"), nullptr);
    EXPECT_EQ(*kept.find("a"), 1);
    EXPECT_EQ(*kept.find("c"), 3);
    kept.keep("d", value(4), 300);
    EXPECT_EQ(kept.find("a"), nullptr);
    EXPECT_EQ(*held, 1);
}

TEST(RecentlyUsed, NeverHoldsMoreThanItMay) {
    RecentlyUsed<int> kept(5000);
    for (int i = 0; i < 1000; ++i) {
        kept.keep(std::to_string(i), value(i), static_cast<std::size_t>(i * 7 % 900));
        ASSERT_LE(kept.bytesUsed(), 5000u);
        ASSERT_EQ(*kept.find(std::to_string(i)), i);
    }
}

TEST(RecentlyUsed, DoesNotThrowTheRestOutForWhatIsTooLarge) {
    RecentlyUsed<int> kept(1000);
    kept.keep("a", value(1), 100);
    kept.keep("large", value(2), 1001);
    EXPECT_EQ(kept.find("large"), nullptr);
    EXPECT_EQ(*kept.find("a"), 1);
}

}  // namespace
}  // namespace canvas

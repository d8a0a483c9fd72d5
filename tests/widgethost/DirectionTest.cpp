#include "widgethost/Direction.hpp"

#include <gtest/gtest.h>

namespace widgethost {
namespace {

TEST(Direction, CountsWhatLiesAlongItAndWhatLiesAside) {
    EXPECT_EQ(distance({1, 2}, {11, 2}, Direction::right, 4), 10);
    EXPECT_EQ(distance({1, 2}, {11, 5}, Direction::right, 4), 10 + 4 * 3);
    EXPECT_EQ(distance({1, 2}, {-9, -1}, Direction::left, 2), 10 + 2 * 3);
    EXPECT_EQ(distance({1, 2}, {0, 22}, Direction::down, 3), 20 + 3 * 1);
    EXPECT_EQ(distance({1, 2}, {3, -18}, Direction::up, 3), 20 + 3 * 2);
}

TEST(Direction, ReachesNothingOnTheOtherSides) {
    for (const Direction way : {Direction::left, Direction::up, Direction::down})
        EXPECT_EQ(distance({0, 0}, {10, 0}, way, 1), std::nullopt);
    EXPECT_EQ(distance({0, 0}, {0.99, 0}, Direction::right, 1), std::nullopt);
    EXPECT_EQ(distance({0, 0}, {1, 0}, Direction::right, 1), 1);
}

}  // namespace
}  // namespace widgethost

#include "widgethost/Board.hpp"
#include "widgethost/Monitors.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace widgethost {
namespace {

TEST(Board, AMediumCardTakesTwoCells) {
    Board board({desk()});
    board.take({0, {3, 1}}, 2);
    for (std::int64_t column = 0; column < 8; ++column) {
        EXPECT_EQ(board.isFree({0, {column, 1}}, 1), column != 3 && column != 4) << column;
        EXPECT_EQ(board.isFree({0, {column, 1}}, 2), column < 2 || column > 4) << column;
        EXPECT_TRUE(board.isFree({0, {column, 2}}, 2));
    }
}

TEST(Board, WhatStandsOnOneMonitorIsInNobodysWayOnAnother) {
    Board board({desk(), laptop()});
    board.take({0, {0, 0}}, 2);
    EXPECT_TRUE(board.isFree({1, {0, 0}}, 2));
    EXPECT_FALSE(board.isFree({2, {0, 0}}, 1)) << "there are two monitors";
}

TEST(Board, ACardSnapsToTheCellUnderItsCorner) {
    const Board board({desk(), laptop()});
    for (const std::size_t monitor : {0u, 1u})
        for (std::int64_t column = 0; column < 5; ++column)
            for (const double off : {-96.0, -40.0, 0.0, 40.0, 96.0}) {
                const Spot spot{monitor, {column, 2}};
                const views::Point at = board.origin(spot);
                if (column == 0 && off < 0)
                    continue;
                EXPECT_EQ(board.nearest({at.x + off, at.y + off / 2}, 1), spot) << off;
            }
}

TEST(Board, NearestIsTheNearestOfAllFreeSpots) {
    std::mt19937 engine(7);
    const auto random = [&](std::int64_t limit) {
        return std::uniform_int_distribution<std::int64_t>(0, limit - 1)(engine);
    };
    for (int round = 0; round < 200; ++round) {
        Board board({desk(), laptop()});
        for (int i = 0; i < 20; ++i) {
            const Spot spot{static_cast<std::size_t>(random(2)), {random(9), random(5)}};
            const std::int64_t span = 1 + random(2);
            if (board.isFree(spot, span))
                board.take(spot, span);
        }
        const views::Point point{static_cast<double>(random(3600)) - 200,
                                 static_cast<double>(random(1400)) - 200};
        const std::int64_t span = 1 + random(2);
        const auto near = board.nearest(point, span);
        ASSERT_TRUE(near);
        EXPECT_TRUE(board.isFree(*near, span));
        const auto distance = [&](Spot spot) {
            const views::Point at = board.origin(spot);
            return std::hypot(at.x - point.x, at.y - point.y);
        };
        for (std::size_t monitor = 0; monitor < 2; ++monitor)
            for (std::int64_t column = 0; column < 9; ++column)
                for (std::int64_t row = 0; row < 5; ++row)
                    if (const Spot other{monitor, {column, row}}; board.isFree(other, span)) {
                        EXPECT_LE(distance(*near), distance(other));
                    }
    }
}

TEST(Board, NewCardsFillTwoColumnsFromTheTopRight) {
    Board board({laptop()});
    const auto add = [&](std::int64_t span) {
        const auto spot = board.first(span);
        if (spot)
            board.take(*spot, span);
        return spot;
    };
    EXPECT_EQ(add(1), (Spot{0, {4, 0}}));
    EXPECT_EQ(add(2), (Spot{0, {4, 1}}));
    EXPECT_EQ(add(1), (Spot{0, {5, 0}}));
    EXPECT_EQ(add(2), (Spot{0, {4, 2}}));
    EXPECT_EQ(add(2), (Spot{0, {2, 0}}));
}

TEST(Board, FillsEveryCellAndThenTheNextMonitor) {
    for (const int width : {412, 700, 1280, 1920}) {
        Board board({monitor("A", 0, 0, width, 700), laptop()});
        const std::int64_t cells = 3 * Grid({0, 0, static_cast<double>(width), 700}).columns();
        for (std::int64_t i = 0; i < cells + 18; ++i) {
            const auto spot = board.first(1);
            ASSERT_TRUE(spot) << i;
            EXPECT_TRUE(board.isFree(*spot, 1));
            EXPECT_EQ(spot->monitor, i < cells ? 0u : 1u);
            board.take(*spot, 1);
        }
        EXPECT_FALSE(board.first(1));
        EXPECT_FALSE(board.nearest({0, 0}, 1));
    }
}

TEST(Board, TheNextSpotIsStraightOn) {
    Board board({desk(), laptop()});
    board.take({0, {3, 2}}, 1);
    EXPECT_EQ(board.next({0, {2, 2}}, Direction::right, 1), (Spot{0, {4, 2}}));
    EXPECT_EQ(board.next({0, {4, 2}}, Direction::left, 1), (Spot{0, {2, 2}}));
    EXPECT_EQ(board.next({0, {3, 1}}, Direction::down, 1), (Spot{0, {3, 3}}));
    EXPECT_EQ(board.next({0, {3, 3}}, Direction::up, 1), (Spot{0, {3, 1}}));
    EXPECT_EQ(board.next({0, {0, 0}}, Direction::left, 1), std::nullopt);
    EXPECT_EQ(board.next({0, {0, 0}}, Direction::up, 1), std::nullopt);
}

TEST(Board, TheNextSpotAtTheEdgeIsOnTheNextMonitor) {
    const Board board({desk(), laptop()});
    EXPECT_EQ(board.next({0, {8, 1}}, Direction::right, 1), (Spot{1, {0, 1}}));
    EXPECT_EQ(board.next({1, {0, 1}}, Direction::left, 1), (Spot{0, {8, 1}}));
    EXPECT_EQ(board.next({0, {7, 1}}, Direction::right, 2), (Spot{1, {0, 1}}));
}

}  // namespace
}  // namespace widgethost

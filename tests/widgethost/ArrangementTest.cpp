#include "widgethost/Arrangement.hpp"
#include "widgethost/Monitors.hpp"

#include <gtest/gtest.h>

#include <random>

namespace widgethost {
namespace {

PlacedWidget widget(const Monitor& monitor, Cell cell, std::int64_t span = 1) {
    return {"kind", span, monitor.identity, cell.column, cell.row};
}

TEST(Arrangement, EveryWidgetStandsAtItsPlace) {
    const Placement placement{
        .widgets = {widget(laptop(), {5, 2}), widget(desk(), {0, 0}, 2), widget(desk(), {2, 0})}};
    const std::vector<std::optional<Spot>> expected{Spot{1, {5, 2}}, Spot{0, {0, 0}},
                                                    Spot{0, {2, 0}}};
    EXPECT_EQ(arranged(placement, {desk(), laptop()}), expected);
}

TEST(Arrangement, AWidgetOfAMissingMonitorWaitsOnThePrimaryOneAndReturns) {
    const Placement placement{.widgets = {widget(laptop(), {1, 1})}};
    EXPECT_EQ(arranged(placement, {desk()})[0], (Spot{0, {1, 1}}));
    EXPECT_EQ(arranged(placement, {desk(), laptop()})[0], (Spot{1, {1, 1}}));
}

TEST(Arrangement, AGuestNeverTakesThePlaceOfOneAtHome) {
    const Placement placement{.widgets = {widget(laptop(), {1, 1}), widget(desk(), {1, 1})}};
    const auto spots = arranged(placement, {desk()});
    EXPECT_EQ(spots[1], (Spot{0, {1, 1}}));
    ASSERT_TRUE(spots[0]);
    EXPECT_NE(spots[0], spots[1]);
}

TEST(Arrangement, AMonitorIsKnownByItsSocketWhereverItStands) {
    const Placement placement{.widgets = {widget(laptop(), {1, 1})}};
    const Monitor moved = monitor("eDP-1", 0, 1080, 1280, 720);
    EXPECT_EQ(arranged(placement, {desk(), moved})[0], (Spot{1, {1, 1}}));
}

TEST(Arrangement, AMonitorIsKnownByItsPlaceWhenItsSocketHasAnotherName) {
    const Placement placement{.widgets = {widget(laptop(), {1, 1})}};
    const Monitor renamed = monitor("eDP-1-1", 1920, 0, 1280, 720);
    EXPECT_EQ(arranged(placement, {desk(), renamed})[0], (Spot{1, {1, 1}}));
}

TEST(Arrangement, ASmallerMonitorShowsItsWidgetsAtItsEdge) {
    const Monitor small = monitor("HDMI-1", 0, 0, 800, 600);
    const Placement placement{.widgets = {widget(desk(), {8, 0}), widget(desk(), {7, 4}, 2)}};
    const auto spots = arranged(placement, {small, laptop()});
    EXPECT_EQ(spots[0], (Spot{0, {3, 0}}));
    EXPECT_EQ(spots[1], (Spot{0, {2, 1}}));
}

TEST(Arrangement, WithoutMonitorsOrRoomWidgetsStandNowhere) {
    Placement placement{.widgets = std::vector<PlacedWidget>(5, widget(desk(), {0, 0}))};
    for (const auto& spot : arranged(placement, {}))
        EXPECT_FALSE(spot);
    const auto spots = arranged(placement, {monitor("A", 0, 0, 412, 412)});
    EXPECT_TRUE(spots[3]);
    EXPECT_FALSE(spots[4]);
}

/// Whatever is in the file and whatever monitors there are, cards never overlap.
TEST(Arrangement, NeverPutsOneCardOnAnother) {
    std::mt19937 random(11);
    const std::vector<std::vector<Monitor>> desktops{
        {desk()}, {laptop()}, {desk(), laptop()}, {monitor("DP-9", 0, 0, 640, 480), desk()}};
    for (int round = 0; round < 500; ++round) {
        const auto& monitors = desktops[random() % desktops.size()];
        Placement placement;
        for (std::size_t i = 0; i < random() % 40; ++i) {
            const Cell cell{static_cast<std::int64_t>(random() % 14) - 2,
                            static_cast<std::int64_t>(random() % 8) - 2};
            placement.widgets.push_back(
                widget(random() % 2 ? desk() : laptop(), cell, 1 + random() % 2));
        }
        const auto spots = arranged(placement, monitors);
        ASSERT_EQ(spots.size(), placement.widgets.size());
        Board board(monitors);
        for (std::size_t i = 0; i < spots.size(); ++i)
            if (spots[i]) {
                EXPECT_TRUE(board.isFree(*spots[i], placement.widgets[i].span));
                board.take(*spots[i], placement.widgets[i].span);
            }
        for (std::size_t i = 0; i < spots.size(); ++i)
            EXPECT_TRUE(spots[i] || !board.first(placement.widgets[i].span)) << "there is room";
    }
}

TEST(Arrangement, CellsFarBeyondAnyGridDoNoHarm) {
    const Placement placement{
        .widgets = {widget(desk(), {10000, 10000}), widget(desk(), {-10000, 0}, 2)}};
    const auto spots = arranged(placement, {desk()});
    EXPECT_EQ(spots[0], (Spot{0, {8, 4}}));
    EXPECT_EQ(spots[1], (Spot{0, {0, 0}}));
}

}  // namespace
}  // namespace widgethost

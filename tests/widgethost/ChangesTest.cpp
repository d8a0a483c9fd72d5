#include "widgethost/Arrangement.hpp"
#include "widgethost/Changes.hpp"
#include "widgethost/Monitors.hpp"

#include <gtest/gtest.h>

namespace widgethost {
namespace {

PlacedWidget widget(const Monitor& monitor, Cell cell, std::int64_t span = 1) {
    return {"kind", span, monitor.identity, cell.column, cell.row};
}

/// Two cells by two, so that four small cards fill it.
Monitor tiny() {
    return monitor("A", 0, 0, 412, 412);
}

TEST(Changes, TheFirstWidgetsStandInATidyBlock) {
    Placement placement;
    for (const auto& [kind, span] : {std::pair{"a", 1}, {"b", 2}, {"c", 1}, {"d", 2}})
        EXPECT_TRUE(add(placement, kind, span, {desk(), laptop()}));
    ASSERT_EQ(placement.widgets.size(), 4u);
    EXPECT_EQ(placement.widgets[0].cell(), (Cell{7, 0}));
    EXPECT_EQ(placement.widgets[1].cell(), (Cell{7, 1}));
    EXPECT_EQ(placement.widgets[2].cell(), (Cell{8, 0}));
    EXPECT_EQ(placement.widgets[3].cell(), (Cell{7, 2}));
    for (const PlacedWidget& one : placement.widgets)
        EXPECT_EQ(one.monitor, desk().identity);
}

TEST(Changes, NothingIsAddedWhereThereIsNoRoom) {
    Placement placement;
    for (int i = 0; i < 4; ++i)
        EXPECT_TRUE(add(placement, "a", 1, {tiny()}));
    const Placement full = placement;
    EXPECT_FALSE(add(placement, "a", 1, {tiny()}));
    EXPECT_FALSE(add(placement, "a", 2, {}));
    EXPECT_EQ(placement, full);
}

TEST(Changes, AWidgetGoesToTheNextFreePlace) {
    Placement placement{.widgets = {widget(desk(), {0, 0}), widget(desk(), {1, 0})}};
    move(placement, 0, Direction::right, {desk()});
    EXPECT_EQ(placement.widgets[0].cell(), (Cell{2, 0}));
    EXPECT_EQ(placement.widgets[1].cell(), (Cell{1, 0}));
    move(placement, 1, Direction::up, {desk()});
    EXPECT_EQ(placement.widgets[1].cell(), (Cell{1, 0})) << "there is nothing above";
}

TEST(Changes, AWidgetOnTheMoveIsNotInItsOwnWay) {
    Placement placement{.widgets = {widget(desk(), {0, 0}, 2), widget(desk(), {2, 0})}};
    const Grid grid(desk().area);
    move(placement, 0, grid.origin({0, 0}), {desk()});
    EXPECT_EQ(placement.widgets[0].cell(), (Cell{0, 0}));
    move(placement, 0, Board({desk(), laptop()}).origin({1, {3, 2}}), {desk(), laptop()});
    EXPECT_EQ(placement.widgets[0], widget(laptop(), {3, 2}, 2));
}

TEST(Changes, AGuestMovesFromWhereItStandsNow) {
    Placement placement{.widgets = {widget(laptop(), {1, 1})}};
    ASSERT_EQ(arranged(placement, {desk()})[0], (Spot{0, {1, 1}}));
    move(placement, 0, Direction::down, {desk()});
    EXPECT_EQ(placement.widgets[0], widget(desk(), {1, 2}));
}

TEST(Changes, AWidgetThatStandsNowhereStays) {
    Placement placement{.widgets = std::vector<PlacedWidget>(5, widget(tiny(), {0, 0}))};
    const Placement before = placement;
    move(placement, 4, Direction::left, {tiny()});
    move(placement, 4, views::Point{0, 0}, {tiny()});
    EXPECT_EQ(placement, before);
}

TEST(Changes, TidiedWidgetsKeepTheirOrderAndThoseWithoutRoomTheirPlaces) {
    Placement placement{.widgets = {widget(desk(), {0, 4}), widget(desk(), {5, 5})}};
    tidy(placement, {desk()});
    EXPECT_EQ(placement.widgets[0].cell(), (Cell{7, 0}));
    EXPECT_EQ(placement.widgets[1].cell(), (Cell{8, 0}));

    Placement crowd{.widgets = {widget(laptop(), {3, 1}, 2), widget(laptop(), {0, 0}),
                                widget(laptop(), {3, 2}, 2), widget(laptop(), {5, 0}, 2)}};
    tidy(crowd, {tiny()});
    EXPECT_EQ(crowd.widgets[0], widget(tiny(), {0, 0}, 2));
    EXPECT_EQ(crowd.widgets[1], widget(tiny(), {0, 1}));
    EXPECT_EQ(crowd.widgets[2], widget(laptop(), {3, 2}, 2));
    EXPECT_EQ(crowd.widgets[3], widget(laptop(), {5, 0}, 2));
}

}  // namespace
}  // namespace widgethost

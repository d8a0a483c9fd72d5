#include "platform/widgets/WidgetFamily.hpp"
#include "widgethost/Grid.hpp"

#include <gtest/gtest.h>

namespace widgethost {
namespace {

TEST(Grid, CardsOfTheFamiliesTakeOneCellAndTwo) {
    using widgets::WidgetFamily;
    EXPECT_EQ(Grid::span(widgets::cardSize(WidgetFamily::systemSmall)), 1);
    EXPECT_EQ(Grid::span(widgets::cardSize(WidgetFamily::systemMedium)), 2);
    EXPECT_EQ(Grid::cardSize(1), widgets::cardSize(WidgetFamily::systemSmall));
    EXPECT_EQ(Grid::cardSize(2), widgets::cardSize(WidgetFamily::systemMedium));
}

TEST(Grid, EveryCardLiesInTheAreaWithAGapAroundIt) {
    for (int width = 412; width < 2600; width += 31)
        for (int height = 218; height < 1500; height += 97) {
            const views::Rect area{-300, 40, static_cast<double>(width),
                                   static_cast<double>(height)};
            const Grid grid(area);
            const views::Point first = grid.origin({0, 0});
            const views::Point last = grid.origin({grid.columns() - 1, grid.rows() - 1});
            EXPECT_GE(first.x, area.x + Grid::gap);
            EXPECT_EQ(first.y, area.y + Grid::gap);
            EXPECT_LE(last.x + Grid::pitch, area.right());
            EXPECT_LE(last.y + Grid::pitch, area.bottom());
            EXPECT_GT(last.y + 2 * Grid::pitch, area.bottom()) << "another row has room";
        }
}

TEST(Grid, StandsInTheMiddleOfTheWidth) {
    const Grid grid({0, 0, 1920, 1080});
    EXPECT_EQ(grid.columns(), 9);
    EXPECT_EQ(grid.rows(), 5);
    EXPECT_EQ(grid.origin({0, 0}), (views::Point{99, 24}));
    EXPECT_EQ(grid.origin({8, 1}), (views::Point{1651, 218}));
}

TEST(Grid, HasRoomForAMediumCardHoweverSmallTheArea) {
    for (const double side : {-5.0, 0.0, 1.0, 170.0, 300.0}) {
        const Grid grid({10, 20, side, side});
        EXPECT_TRUE(grid.holds({0, 0}, 2));
        EXPECT_EQ(grid.origin({0, 0}), (views::Point{10, 44}));
    }
}

TEST(Grid, HoldsOnlyWhatLiesInItWhole) {
    const Grid grid({0, 0, 1280, 720});
    for (std::int64_t column = -2; column <= 7; ++column)
        for (std::int64_t row = -2; row <= 4; ++row)
            for (std::int64_t span = -1; span <= 7; ++span)
                EXPECT_EQ(grid.holds({column, row}, span),
                          column >= 0 && row >= 0 && row < 3 && span >= 1 && column + span <= 6);
    EXPECT_FALSE(grid.holds({INT64_MAX, INT64_MIN}, 1));
    EXPECT_FALSE(grid.holds({INT64_MAX, 0}, INT64_MAX));
}

}  // namespace
}  // namespace widgethost

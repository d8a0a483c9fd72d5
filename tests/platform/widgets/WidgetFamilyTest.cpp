#include "platform/widgets/WidgetFamily.hpp"

#include <gtest/gtest.h>

namespace widgets {
namespace {

TEST(WidgetFamily, StandsOnAGridWithGaps) {
    constexpr double gap = 24;
    const views::Size small = cardSize(WidgetFamily::systemSmall);
    const views::Size medium = cardSize(WidgetFamily::systemMedium);
    EXPECT_EQ(small, (views::Size{170, 170}));
    EXPECT_EQ(medium, (views::Size{2 * small.width + gap, small.height}));
}

TEST(WidgetFamily, IsCalledByItsName) {
    EXPECT_EQ(name(WidgetFamily::systemSmall), "systemSmall");
    EXPECT_EQ(name(WidgetFamily::systemMedium), "systemMedium");
}

}  // namespace
}  // namespace widgets

#include "platform/views/layout/LayoutContext.hpp"
#include "support/FixedTextMeasurer.hpp"

#include <gtest/gtest.h>

namespace views {
namespace {

TEST(LayoutContext, RoundsUpToWholePixels) {
    struct Case {
        double scale;
        double length;
        double rounded;
    };
    const Case cases[] = {
        {1, 0, 0},        {1, 0.2, 1},         {1, 3, 3},       {1.25, 0.2, 0.8},
        {1.25, 1.6, 1.6}, {1.5, 2, 2},         {2, 50.3, 50.5}, {2, 50.5, 50.5},
        {2, 50.51, 51},   {3, 50.3, 151. / 3}, {3, 50, 50},
    };
    const support::FixedTextMeasurer measurer;
    for (const Case& c : cases) {
        const LayoutContext context(measurer, c.scale);
        EXPECT_DOUBLE_EQ(context.roundedUpToPixel(c.length), c.rounded)
            << c.length << " at " << c.scale;
    }
}

TEST(LayoutContext, RoundsAWholeNumberOfPixelsToItself) {
    const support::FixedTextMeasurer measurer;
    for (const double scale : {1.0, 1.25, 1.5, 2.0, 3.0}) {
        const LayoutContext context(measurer, scale);
        double sum = 0;
        for (int pixels = 1; pixels < 2000; ++pixels) {
            sum += 1 / scale;
            EXPECT_NEAR(context.roundedUpToPixel(sum), pixels / scale, 1e-9);
        }
    }
}

TEST(LayoutContext, RemembersByStackAndOffer) {
    const support::FixedTextMeasurer measurer;
    LayoutContext context(measurer, 2);
    const int stack = 0;
    const int other = 0;
    context.remember(&stack, {10, std::nullopt}, {.size = {1, 2}});
    ASSERT_NE(context.remembered(&stack, {10, std::nullopt}), nullptr);
    EXPECT_EQ(context.remembered(&stack, {10, std::nullopt})->size, (Size{1, 2}));
    EXPECT_EQ(context.remembered(&stack, {std::nullopt, 10}), nullptr);
    EXPECT_EQ(context.remembered(&stack, {10, 10}), nullptr);
    EXPECT_EQ(context.remembered(&stack, {10, -1}), nullptr);
    EXPECT_EQ(context.remembered(&other, {10, std::nullopt}), nullptr);
}

TEST(LayoutContext, RemembersTextsByWidthAndLines) {
    const support::FixedTextMeasurer measurer;
    LayoutContext context(measurer, 2);
    const int text = 0;
    const int other = 0;
    context.remember(&text, 70, 1, {.lines = {"uno"}, .width = 20});
    ASSERT_NE(context.remembered(&text, 70, 1), nullptr);
    EXPECT_EQ(context.remembered(&text, 70, 1)->width, 20);
    EXPECT_EQ(context.remembered(&text, 70, 2), nullptr);
    EXPECT_EQ(context.remembered(&text, 71, 1), nullptr);
    EXPECT_EQ(context.remembered(&other, 70, 1), nullptr);
}

TEST(LayoutContext, WhatIsRememberedStaysInItsPlace) {
    const support::FixedTextMeasurer measurer;
    LayoutContext context(measurer, 2);
    const int stack = 0;
    const StackLayout& first = context.remember(&stack, {}, {.size = {1, 2}});
    for (int i = 0; i < 1000; ++i)
        context.remember(&stack, {i, i}, {});
    EXPECT_EQ(context.remembered(&stack, {}), &first);
    EXPECT_EQ(first.size, (Size{1, 2}));
}

}  // namespace
}  // namespace views

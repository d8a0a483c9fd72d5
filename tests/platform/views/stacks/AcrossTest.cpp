#include "platform/views/Laid.hpp"
#include "platform/views/Probe.hpp"
#include "platform/views/stacks/Spacer.hpp"
#include "platform/views/stacks/Stacks.hpp"
#include "platform/views/text/Text.hpp"

#include <gtest/gtest.h>

namespace views {
namespace {

// How stacks place their children across their axis.

TEST(HStackAcross, IsAsHighAsItsHighestChildAndAlignsTheOthers) {
    const std::pair<VerticalAlignment, double> cases[] = {
        {VerticalAlignment::top, 0},
        {VerticalAlignment::center, 10},
        {VerticalAlignment::bottom, 20},
    };
    for (const auto& [alignment, y] : cases) {
        Frames frames;
        const View row =
            HStack{.alignment = alignment}({rigid(5, 10, frames), rigid(5, 30, frames)});
        drawn(row, {100, 50});
        EXPECT_EQ(sizeOf(row, {100, 50}), (Size{10, 30}));
        EXPECT_EQ(frames, (Frames{{0, y, 5, 10}, {5, 0, 5, 30}}));
    }
}

TEST(VStackAcross, IsAsWideAsItsWidestChildAndAlignsTheOthers) {
    const std::pair<HorizontalAlignment, double> cases[] = {
        {leading, 0},
        {HorizontalAlignment::center, 10},
        {trailing, 20},
    };
    for (const auto& [alignment, x] : cases) {
        Frames frames;
        const View column =
            VStack{.alignment = alignment}({rigid(10, 5, frames), rigid(30, 5, frames)});
        drawn(column, {50, 100});
        EXPECT_EQ(sizeOf(column, {50, 100}), (Size{30, 10}));
        EXPECT_EQ(frames, (Frames{{x, 0, 10, 5}, {0, 5, 30, 5}}));
    }
}

TEST(HStackAcross, OffersItsChildrenItsOwnHeightWhereNoneIsOffered) {
    Frames frames;
    drawn(HStack{}({greedy(frames), rigid(10, 30, frames)}), {50, std::nullopt});
    EXPECT_EQ(frames, (Frames{{0, 0, 40, 30}, {40, 0, 10, 30}}));
}

TEST(VStackAcross, OffersItsChildrenItsOwnWidthWhereNoneIsOffered) {
    Frames frames;
    drawn(VStack{}({greedy(frames), rigid(30, 10, frames)}), {std::nullopt, 50});
    EXPECT_EQ(frames, (Frames{{0, 0, 30, 40}, {0, 40, 30, 10}}));
}

TEST(StackAcross, ASpacerTakesNothing) {
    Frames frames;
    EXPECT_EQ(sizeOf(HStack{}({rigid(5, 4, frames), Spacer{.minLength = 9}}), {50, 30}),
              (Size{50, 4}));
    EXPECT_EQ(sizeOf(VStack{}({rigid(5, 4, frames), Spacer{.minLength = 9}}), {50, 30}),
              (Size{5, 30}));
    EXPECT_EQ(sizeOf(HStack{}({Spacer{.minLength = 9}}), {50, 30}), (Size{50, 0}));
    EXPECT_EQ(sizeOf(HStack{}({Spacer{.minLength = 9}}), {}), (Size{9, 0}));
}

TEST(StackAcross, AnOverflowingStackSticksOutOnBothSidesOfItsParent) {
    Frames frames;
    const View row = HStack{.spacing = 5}({rigid(20, 10, frames), rigid(20, 10, frames)});
    drawn(row.frame({.width = 30, .height = 4}), {});
    EXPECT_EQ(frames, (Frames{{-7.5, -3, 20, 10}, {17.5, -3, 20, 10}}));
}

TEST(FirstBaseline, LetsBaselinesCoincide) {
    Frames frames;
    const Probe high{.width = Range::exactly(10),
                     .height = Range::exactly(31),
                     .drawn = &frames,
                     .baseline = 25};
    const Probe low{.width = Range::exactly(10),
                    .height = Range::exactly(20),
                    .drawn = &frames,
                    .baseline = 11};
    const View row = HStack{.alignment = firstTextBaseline}({low, high});
    EXPECT_EQ(sizeOf(row, {50, 50}), (Size{20, 25 + 9}));
    EXPECT_EQ(baselineOf(row, {50, 50}), 25);
    drawn(row, {50, 50});
    EXPECT_EQ(frames, (Frames{{0, 14, 10, 20}, {10, 0, 10, 31}}));
}

TEST(FirstBaseline, OfAViewWithoutTextIsItsBottom) {
    Frames frames;
    const View row = HStack{.alignment = firstTextBaseline}(
        {Text("8").font({.size = 26}), rigid(7, 10, frames)});
    EXPECT_EQ(sizeOf(row, {50, 50}), (Size{20, 31}));
    drawn(row, {50, 50});
    EXPECT_EQ(frames, (Frames{{13, 15, 7, 10}}));
}

TEST(FirstBaseline, IsNotMovedByASpacer) {
    Frames frames;
    const View row = HStack{.alignment = firstTextBaseline}({
        Text("8").font({.size = 26}),
        Spacer{.minLength = 0},
        rigid(7, 10, frames),
    });
    EXPECT_EQ(sizeOf(row, {50, 90}), (Size{50, 31}));
    drawn(row, {50, 90});
    EXPECT_EQ(frames, (Frames{{43, 15, 7, 10}}));
}

TEST(FirstBaseline, OfAStackIsTheTopmostOfItsChildren) {
    Frames frames;
    const View small = Text("dB").font({.size = 11});
    const View large = Text("8").font({.size = 26});
    EXPECT_EQ(baselineOf(HStack{}({small, large}), {90, 90}), (31 - 14) / 2.0 + 11);
    EXPECT_EQ(baselineOf(VStack{.spacing = 3}({large, small}), {90, 90}), 25);
    EXPECT_EQ(baselineOf(ZStack{}({small, large}), {90, 90}), (31 - 14) / 2.0 + 11);
    EXPECT_EQ(baselineOf(HStack{}({}), {90, 90}), 0);
}

TEST(FirstBaseline, PassesThroughModifiers) {
    const View text = Text("dB").font({.size = 11});
    EXPECT_EQ(baselineOf(text.padding(Edge::top, 8), {90, 90}), 19);
    EXPECT_EQ(baselineOf(text.padding(Edge::horizontal, 8), {90, 90}), 11);
    EXPECT_EQ(baselineOf(text.frame({.height = 40}), {90, 90}), 13 + 11);
    EXPECT_EQ(baselineOf(text.frame({.minHeight = 40, .maxHeight = infinity}), {90, 90}), 38 + 11);
    EXPECT_EQ(baselineOf(text.opacity(0.5), {90, 90}), 11);
    EXPECT_EQ(baselineOf(text.background(Color{}), {90, 90}), 11);
    EXPECT_EQ(baselineOf(text.overlay(Color{}), {90, 90}), 11);
    EXPECT_EQ(baselineOf(text.fixedSize({}), {90, 90}), 11);
    EXPECT_EQ(baselineOf(text.offset(0, 5), {90, 90}), 11);
    EXPECT_EQ(baselineOf(text.containerBackground(Color{}), {90, 90}), 11);
}

}  // namespace
}  // namespace views

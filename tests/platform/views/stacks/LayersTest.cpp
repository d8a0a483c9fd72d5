#include "platform/views/Laid.hpp"
#include "platform/views/Probe.hpp"
#include "platform/views/stacks/Stacks.hpp"

#include <gtest/gtest.h>

namespace views {
namespace {

TEST(ZStack, IsAsLargeAsItsChildrenOnEachAxis) {
    Frames frames;
    const View layers = ZStack{}({rigid(40, 10, frames), rigid(20, 30, frames)});
    EXPECT_EQ(sizeOf(layers, {100, 100}), (Size{40, 30}));
    EXPECT_EQ(sizeOf(layers, {}), (Size{40, 30}));
}

TEST(ZStack, OffersItsChildrenFirstWhatItIsOfferedThenItsOwnSize) {
    Frames frames;
    const Probe bounded{.width = {0, 10, 60}, .height = {0, 10, 15}, .drawn = &frames};
    drawn(ZStack{}({bounded, rigid(20, 30, frames)}), {100, 100});
    EXPECT_EQ(frames, (Frames{{0, 7.5, 60, 15}, {20, 0, 20, 30}}));
}

TEST(ZStack, LetsAChildThatTakesAllFillTheOthersOnly) {
    Frames frames;
    const View layers = ZStack{}({greedy(frames), rigid(40, 30, frames)});
    EXPECT_EQ(sizeOf(layers, {}), (Size{40, 30}));
    drawn(layers, {});
    EXPECT_EQ(frames, (Frames{{0, 0, 40, 30}, {0, 0, 40, 30}}));
}

TEST(ZStack, AlignsItsChildren) {
    Frames frames;
    const Alignment bottomTrailing{HorizontalAlignment::trailing, VerticalAlignment::bottom};
    drawn(ZStack{.alignment = bottomTrailing}({rigid(40, 10, frames), rigid(20, 30, frames)}),
          {100, 100});
    EXPECT_EQ(frames, (Frames{{0, 20, 40, 10}, {20, 0, 20, 30}}));

    frames.clear();
    drawn(ZStack{.alignment = Alignment::leading()}({rigid(40, 10, frames), rigid(20, 30, frames)}),
          {100, 100});
    EXPECT_EQ(frames, (Frames{{0, 10, 40, 10}, {0, 0, 20, 30}}));
}

}  // namespace
}  // namespace views

#include "platform/views/Laid.hpp"
#include "platform/views/Probe.hpp"
#include "platform/views/controls/Divider.hpp"
#include "platform/views/stacks/Stacks.hpp"

#include <gtest/gtest.h>

namespace views {
namespace {

constexpr Color rule{0.165, 0.184, 0.2};

TEST(Divider, FillsTheWidthAndIsOnePointHigh) {
    EXPECT_EQ(sizeOf(Divider{}, {316, 80}), (Size{316, 1}));
    EXPECT_EQ(sizeOf(Divider{}, {0, 0}), (Size{0, 1}));
    EXPECT_EQ(sizeOf(Divider{}, {}), (Size{10, 1}));
}

TEST(Divider, IsAsWideAsItsColumn) {
    Frames frames;
    drawn(VStack{.alignment = leading}(
              {rigid(40, 10, frames), traced(Divider{}, frames), rigid(60, 10, frames)}),
          {});
    EXPECT_EQ(frames[1], (Rect{0, 10, 60, 1}));
}

TEST(Divider, GivesWayToAnOpaqueOverlay) {
    EXPECT_EQ(drawn(View(Divider{}).overlay(rule), {316, 80}).drawing,
              (std::vector<Command>{FillShape{Rectangle{}, {0, 0, 316, 1}, rule}}));
    EXPECT_EQ(drawn(View(Divider{}).overlay(rule.opacity(0.5)), {316, 80}).drawing.size(), 2u);
    EXPECT_EQ(drawn(Divider{}, {316, 80}).drawing.size(), 1u);
}

}  // namespace
}  // namespace views

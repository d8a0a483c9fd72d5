#include "platform/views/Laid.hpp"
#include "platform/views/Probe.hpp"
#include "platform/views/stacks/Spacer.hpp"
#include "platform/views/stacks/Stacks.hpp"
#include "platform/views/view/ViewList.hpp"

#include <gtest/gtest.h>

namespace views {
namespace {

TEST(Stacks, OfNoneIsNothing) {
    for (const Proposal& offer : {Proposal{100, 100}, {0, 0}, {}, {infinity, infinity}}) {
        EXPECT_EQ(sizeOf(HStack{.spacing = 9}({}), offer), (Size{0, 0}));
        EXPECT_EQ(sizeOf(VStack{.spacing = 9}({}), offer), (Size{0, 0}));
        EXPECT_EQ(sizeOf(ZStack{}({}), offer), (Size{0, 0}));
    }
}

TEST(Stacks, OfOneIsThatOne) {
    Frames frames;
    const View child = greedy(frames);
    for (const View& stack : {HStack{.spacing = 9}({child}), VStack{.spacing = 9}({child}),
                              ZStack{}({child}), HStack{}({VStack{}({ViewList{child}})})})
        EXPECT_EQ(&stack.node(), &child.node());
}

TEST(Stacks, TakeTheMembersOfListsAsTheirOwnChildren) {
    Frames frames;
    const std::vector<double> widths{20, 30};
    drawn(HStack{.spacing = 5}({
              rigid(10, 10, frames),
              forEach(widths, [&](double width) { return rigid(width, 10, frames); }),
              ViewList{ViewList{rigid(1, 10, frames)}, ViewList{}},
          }),
          {100, 10});
    EXPECT_EQ(frames, (Frames{{0, 0, 10, 10}, {15, 0, 20, 10}, {40, 0, 30, 10}, {75, 0, 1, 10}}));
}

TEST(Stacks, HaveNoGapForWhatIsAbsent) {
    Frames frames;
    const std::vector<double> none;
    const auto child = [&] { return rigid(10, 10, frames); };
    const View row = HStack{.spacing = 5}({
        when(false, child),
        child(),
        forEach(none, [&](double) { return child(); }),
        when(true, child),
        when(false, child),
    });
    EXPECT_EQ(sizeOf(row, {100, 10}), (Size{25, 10}));
    EXPECT_EQ(sizeOf(VStack{.spacing = 5}({when(false, child), when(false, child)}), {50, 50}),
              (Size{0, 0}));
}

TEST(Stacks, MayLieInStacks) {
    Frames frames;
    drawn(VStack{.alignment = leading, .spacing = 2}({
              HStack{.spacing = 4}({rigid(10, 10, frames), greedy(frames)}),
              HStack{}({Spacer{.minLength = 0}, rigid(20, 6, frames)}),
          }),
          {100, 50});
    EXPECT_EQ(frames, (Frames{{0, 16, 10, 10}, {14, 0, 86, 42}, {80, 44, 20, 6}}));
}

TEST(Spacer, OutsideAStackTakesWhatItIsOffered) {
    const Spacer spacer{.minLength = 8};
    EXPECT_EQ(sizeOf(spacer, {30, 4}), (Size{30, 8}));
    EXPECT_EQ(sizeOf(spacer, {}), (Size{8, 8}));
}

}  // namespace
}  // namespace views

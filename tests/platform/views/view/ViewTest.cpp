#include "platform/views/Laid.hpp"
#include "platform/views/Probe.hpp"
#include "platform/views/stacks/Stacks.hpp"
#include "platform/views/text/Text.hpp"
#include "platform/views/view/View.hpp"
#include "platform/views/view/ViewList.hpp"

#include <gtest/gtest.h>

#include <string>

namespace views {
namespace {

/// A composite that notes when its body is taken.
struct Named {
    std::string name;
    std::vector<std::string>* bodies;
    std::vector<Named> parts;

    View body() const {
        bodies->push_back(name);
        return VStack{}({forEach(parts, [](const Named& part) -> View { return part; }),
                         Text(name).font({.size = 10})});
    }
};

TEST(View, TakesABodyOnceParentBeforeChild) {
    std::vector<std::string> bodies;
    const View view =
        Named{"a", &bodies, {{"b", &bodies, {{"c", &bodies, {}}}}, {"d", &bodies, {}}}};
    EXPECT_EQ(bodies, (std::vector<std::string>{"a", "b", "c", "d"}));
    drawn(view, {100, 100});
    const View copy = view;
    drawn(copy.padding(Edge::top, 4), {100, 100});
    EXPECT_EQ(bodies.size(), 4u);
}

TEST(View, OfACompositeIsItsBody) {
    std::vector<std::string> bodies;
    const View view = Named{"abc", &bodies, {}};
    EXPECT_EQ(sizeOf(view, {}), (Size{15, 13}));
    EXPECT_EQ(baselineOf(view, {}), 10);
}

TEST(View, ModifiedLeavesTheFirstOneAsItWas) {
    Frames frames;
    const View view = rigid(10, 10, frames);
    const View padded = view.padding(Edge::top, 4);
    EXPECT_EQ(sizeOf(view, {}), (Size{10, 10}));
    EXPECT_EQ(sizeOf(padded, {}), (Size{10, 14}));
}

TEST(ViewList, PassesAModifierOnToEachMember) {
    Frames frames;
    const View list = ViewList{rigid(10, 10, frames), ViewList{rigid(20, 10, frames)}, ViewList{}};
    drawn(VStack{.alignment = leading, .spacing = 2}({list.padding(Edge::top, 3)}), {});
    EXPECT_EQ(frames, (Frames{{0, 3, 10, 10}, {0, 18, 20, 10}}));
}

TEST(ViewList, OutsideAStackHasItsMembersOnEachOther) {
    Frames frames;
    const View list = ViewList{rigid(10, 30, frames), rigid(20, 10, frames)};
    EXPECT_EQ(sizeOf(list, {}), (Size{20, 30}));
    EXPECT_EQ(baselineOf(list, {}), 20);
    drawn(list, {});
    EXPECT_EQ(frames, (Frames{{5, 0, 10, 30}, {0, 10, 20, 10}}));
    EXPECT_EQ(sizeOf(ViewList{}, {50, 50}), (Size{0, 0}));
}

TEST(ViewList, OfNothingStaysNothingWhenModified) {
    Frames frames;
    const View nothing = when(false, [&] { return rigid(1, 1, frames); });
    const View row = HStack{.spacing = 5}({
        rigid(10, 10, frames),
        nothing.padding(Edge::top, 8).frame({.width = 30}).background(Color{}).opacity(0.5),
    });
    EXPECT_EQ(sizeOf(row, {}), (Size{10, 10}));
}

}  // namespace
}  // namespace views

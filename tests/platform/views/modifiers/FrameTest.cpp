#include "platform/views/Laid.hpp"
#include "platform/views/Probe.hpp"
#include "platform/views/modifiers/Frame.hpp"
#include "platform/views/stacks/Stacks.hpp"
#include "platform/views/text/Text.hpp"
#include "platform/views/view/ViewList.hpp"

#include <gtest/gtest.h>

namespace views {
namespace {

using Length = std::optional<double>;

TEST(FixedFrame, IsWhatItSaysWhateverIsOffered) {
    Frames frames;
    const View framed = rigid(50, 50, frames).frame({.width = 22, .height = 16});
    for (const Proposal& offer : {Proposal{100, 100}, {0, 0}, {}, {infinity, infinity}})
        EXPECT_EQ(sizeOf(framed, offer), (Size{22, 16}));
}

TEST(FixedFrame, OffersItsLengthsToItsView) {
    Frames frames;
    drawn(greedy(frames).frame({.width = 22, .height = 16}), {});
    EXPECT_EQ(frames, (Frames{{0, 0, 22, 16}}));
}

TEST(FixedFrame, LetsTheAxisWithoutLengthThrough) {
    Frames frames;
    const View wide = greedy(frames).frame({.height = 16});
    EXPECT_EQ(sizeOf(wide, {90, 80}), (Size{90, 16}));
    EXPECT_EQ(sizeOf(wide, {}), (Size{10, 16}));
    const View high = greedy(frames).frame({.width = 70});
    EXPECT_EQ(sizeOf(high, {90, 80}), (Size{70, 80}));
    EXPECT_EQ(sizeOf(high, {}), (Size{70, 10}));
    drawn(high, {90, 80});
    EXPECT_EQ(frames, (Frames{{0, 0, 70, 80}}));
}

TEST(FixedFrame, AlignsItsViewWhichMayOverflow) {
    struct Case {
        Alignment alignment;
        Rect expected;
    };
    const Case cases[] = {
        {{}, {5, 6, 10, 4}},
        {Alignment::leading(), {0, 6, 10, 4}},
        {Alignment::trailing(), {10, 6, 10, 4}},
        {{leading, VerticalAlignment::top}, {0, 0, 10, 4}},
        {{trailing, VerticalAlignment::bottom}, {10, 12, 10, 4}},
    };
    for (const Case& c : cases) {
        Frames frames;
        drawn(rigid(10, 4, frames).frame({.width = 20, .height = 16, .alignment = c.alignment}),
              {});
        EXPECT_EQ(frames, (Frames{c.expected}));
    }
    Frames frames;
    drawn(rigid(100, 20, frames).frame({.width = 70, .alignment = Alignment::leading()}), {});
    drawn(rigid(100, 20, frames).frame({.width = 70}), {});
    drawn(rigid(100, 20, frames).frame({.width = 70, .alignment = Alignment::trailing()}), {});
    EXPECT_EQ(frames, (Frames{{0, 0, 100, 20}, {-15, 0, 100, 20}, {-30, 0, 100, 20}}));
}

struct FlexibleCase {
    Length least;
    Length most;
    Range child;
    Length offer;
    double length;   // of the frame
    double childAt;  // in the middle of it
    double childLength;
};

constexpr Range thirty{30, 30, 30};
constexpr Range all{0, 10, infinity};

const FlexibleCase flexibleCases[] = {
    // Both bounds: what is offered, within them.
    {50, 80, thirty, 100, 80, 25, 30},
    {50, 80, thirty, 60, 60, 15, 30},
    {50, 80, thirty, 20, 50, 10, 30},
    {50, 80, thirty, 0, 50, 10, 30},
    {50, 80, thirty, infinity, 80, 25, 30},
    {50, 80, thirty, {}, 50, 10, 30},
    {10, 20, thirty, {}, 20, -5, 30},
    {50, 80, all, 60, 60, 0, 60},
    {50, 80, all, {}, 50, 20, 10},
    // An upper bound: what is offered or the child needs, up to it.
    {{}, 80, thirty, 100, 80, 25, 30},
    {{}, 80, thirty, 60, 60, 15, 30},
    {{}, 80, thirty, 20, 30, 0, 30},
    {{}, 80, thirty, {}, 30, 0, 30},
    {{}, 80, thirty, infinity, 80, 25, 30},
    {{}, 25, thirty, 100, 25, -2.5, 30},
    {{}, 25, thirty, {}, 25, -2.5, 30},
    {{}, infinity, thirty, 100, 100, 35, 30},
    {{}, infinity, thirty, 20, 30, 0, 30},
    {{}, infinity, thirty, {}, 30, 0, 30},
    {{}, infinity, all, 0, 0, 0, 0},
    // A lower bound: what the child takes of the offer, from it on.
    {50, {}, thirty, 100, 50, 10, 30},
    {50, {}, thirty, 20, 50, 10, 30},
    {50, {}, thirty, {}, 50, 10, 30},
    {10, {}, thirty, 100, 30, 0, 30},
    {10, {}, thirty, 20, 20, -5, 30},
    {10, {}, thirty, 5, 10, -10, 30},
    {10, {}, thirty, {}, 30, 0, 30},
    {44, {}, all, 100, 100, 0, 100},
    {44, {}, all, 20, 44, 0, 44},
    {44, {}, all, {}, 44, 17, 10},
    // None: the child's.
    {{}, {}, thirty, 100, 30, 0, 30},
    {{}, {}, thirty, {}, 30, 0, 30},
    {{}, {}, all, 7, 7, 0, 7},
};

TEST(FixedFrame, ATextThatBreaksOnlyInItGivesWayToWhatIsLessFlexible) {
    Frames frames;
    const Font font{.size = 10};
    const double line = font.lineHeight();
    const View column = VStack{.spacing = 0}({
        Text("hola mundo adios").font(font).frame({.width = 30}),
        Probe{.width = Range::exactly(5), .height = {0, 5, 10}, .drawn = &frames},
    });
    EXPECT_EQ(sizeOf(column, {200, 3 * line}).height, 2 * line + 10);
}

TEST(FlexibleFrame, TakesWhatItIsOfferedWithinItsBounds) {
    for (const FlexibleCase& c : flexibleCases) {
        SCOPED_TRACE(::testing::PrintToString(c.least) + " to " + ::testing::PrintToString(c.most) +
                     ", offered " + ::testing::PrintToString(c.offer));
        Frames frames;
        const Range five = Range::exactly(5);
        const View wide = Probe{.width = c.child, .height = five, .drawn = &frames}.frame(
            FlexibleFrame{.minWidth = c.least, .maxWidth = c.most});
        EXPECT_EQ(sizeOf(wide, {c.offer, 9}), (Size{c.length, 5}));
        const View high = Probe{.width = five, .height = c.child, .drawn = &frames}.frame(
            FlexibleFrame{.minHeight = c.least, .maxHeight = c.most});
        EXPECT_EQ(sizeOf(high, {9, c.offer}), (Size{5, c.length}));
        if (c.length == infinity || c.offer == infinity)
            continue;
        drawn(wide, {c.offer, 9});
        drawn(high, {9, c.offer});
        EXPECT_EQ(frames,
                  (Frames{{c.childAt, 0, c.childLength, 5}, {0, c.childAt, 5, c.childLength}}));
    }
}

TEST(FlexibleFrame, WithoutEndTakesAllThatIsOffered) {
    Frames frames;
    EXPECT_EQ(sizeOf(rigid(30, 5, frames).frame({.maxWidth = infinity}), {infinity, 9}),
              (Size{infinity, 5}));
}

TEST(FlexibleFrame, AlignsItsView) {
    Frames frames;
    drawn(rigid(30, 5, frames)
              .frame({.maxWidth = infinity,
                      .minHeight = 44,
                      .alignment = {trailing, VerticalAlignment::bottom}}),
          {100, 20});
    EXPECT_EQ(frames, (Frames{{70, 39, 30, 5}}));
}

TEST(FlexibleFrame, LetsTilesShareARowEqually) {
    for (int tiles = 1; tiles <= 9; ++tiles) {
        Frames frames;
        std::vector<View> members;
        for (int i = 0; i < tiles; ++i)
            members.push_back(traced(
                rigid(10 + i, 12, frames).frame({.maxWidth = infinity, .minHeight = 44}), frames));
        drawn(HStack{.spacing = 8}({ViewList(members)}), {340, 60});
        const double width = (340 - 8.0 * (tiles - 1)) / tiles;
        for (std::size_t i = 0; i < members.size(); ++i) {
            EXPECT_NEAR(frames[2 * i].x, static_cast<double>(i) * (width + 8), 1e-9);
            EXPECT_NEAR(frames[2 * i].width, width, 1e-9);
            EXPECT_EQ(frames[2 * i].height, 44);
        }
    }
}

}  // namespace
}  // namespace views

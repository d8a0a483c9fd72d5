#include "platform/views/Laid.hpp"
#include "platform/views/Probe.hpp"
#include "platform/views/stacks/Spacer.hpp"
#include "platform/views/stacks/Stacks.hpp"
#include "platform/views/view/ViewList.hpp"

#include <gtest/gtest.h>

namespace views {
namespace {

// Every row is laid out both as a row and, with width and height exchanged, as a column.

struct Child {
    Range along;
    double across = 4;
    bool isSpacer = false;
};
constexpr Child fixedChild(double length, double across = 4) {
    return {{length, length, length}, across};
}
constexpr Child endless(double least = 0) {
    return {{least, least + 10, infinity}};
}
constexpr Child spacer(double least) {
    return {{least, least, infinity}, 0, true};
}

struct Expectation {
    double size;
    std::vector<std::pair<double, double>> startsAndLengths;  // of all but spacers
};

View viewOf(const Child& child, bool horizontal, Frames& frames) {
    if (child.isSpacer)
        return Spacer{.minLength = child.along.least};
    const Range across = Range::exactly(child.across);
    return Probe{.width = horizontal ? child.along : across,
                 .height = horizontal ? across : child.along,
                 .drawn = &frames};
}

void expectStack(std::optional<double> length,
                 double spacing,
                 const std::vector<Child>& children,
                 const Expectation& expected) {
    for (const bool horizontal : {true, false}) {
        SCOPED_TRACE(horizontal ? "row" : "column");
        Frames frames;
        std::vector<View> members;
        for (const Child& child : children)
            members.push_back(viewOf(child, horizontal, frames));
        const View stack = horizontal ? HStack{.spacing = spacing}({ViewList(members)})
                                      : VStack{.spacing = spacing}({ViewList(members)});
        const Proposal offer = horizontal ? Proposal{length, 50} : Proposal{50, length};
        const Size size = sizeOf(stack, offer);
        EXPECT_EQ(horizontal ? size.width : size.height, expected.size);
        drawn(stack, offer);
        std::vector<std::pair<double, double>> got;
        for (const Rect& frame : frames)
            got.emplace_back(horizontal ? frame.x : frame.y,
                             horizontal ? frame.width : frame.height);
        EXPECT_EQ(got, expected.startsAndLengths);
    }
}

TEST(LinearStack, GivesTheRestToTheOneThatTakesAll) {
    expectStack(100, 5, {fixedChild(20), endless(), fixedChild(10)},
                {100, {{0, 20}, {25, 60}, {90, 10}}});
}

TEST(LinearStack, SharesEquallyAmongEquals) {
    expectStack(100, 10, {endless(), endless()}, {100, {{0, 45}, {55, 45}}});
    expectStack(100, 0, {endless(), endless(), endless(), endless()},
                {100, {{0, 25}, {25, 25}, {50, 25}, {75, 25}}});
}

TEST(LinearStack, LetsTheLessFlexibleChooseFirst) {
    expectStack(100, 0, {endless(), {{0, 10, 30}}}, {100, {{0, 70}, {70, 30}}});
    expectStack(100, 0, {{{0, 60, 90}}, {{0, 10, 30}}}, {100, {{0, 70}, {70, 30}}});
}

TEST(LinearStack, OfTheEndlessTheOneWithTheLargerMinimumChoosesFirst) {
    expectStack(100, 0, {endless(), endless(60)}, {100, {{0, 40}, {40, 60}}});
}

TEST(LinearStack, BetweenEquallyFlexibleOnesTheFirstChoosesFirst) {
    const Child little{{0, 10, 80}};
    const Child much{{60, 70, 140}};
    expectStack(100, 0, {little, much}, {110, {{0, 50}, {50, 60}}});
    expectStack(100, 0, {much, little}, {100, {{0, 60}, {60, 40}}});
}

TEST(LinearStack, SpacersTakeWhatAllOthersLeave) {
    expectStack(100, 0, {fixedChild(20), spacer(0), endless()}, {100, {{0, 20}, {20, 80}}});
    expectStack(100, 0, {spacer(0), fixedChild(20), spacer(0)}, {100, {{40, 20}}});
    expectStack(100, 5, {fixedChild(20), spacer(0), fixedChild(30)}, {100, {{0, 20}, {70, 30}}});
}

TEST(LinearStack, KeepsTheLeastLengthOfSpacersBack) {
    expectStack(100, 0, {{{0, 95, 95}}, spacer(20)}, {100, {{0, 80}}});
    expectStack(100, 0, {spacer(0), fixedChild(20), spacer(50)}, {100, {{30, 20}}});
    expectStack(30, 0, {fixedChild(20), spacer(20), fixedChild(5)}, {45, {{0, 20}, {40, 5}}});
}

TEST(LinearStack, SpacersCountForTheSpacing) {
    expectStack(10, 5, {fixedChild(20), spacer(0), fixedChild(5)}, {35, {{0, 20}, {30, 5}}});
}

TEST(LinearStack, IsAsLongAsItsChildrenWhereTheyDoNotFit) {
    expectStack(30, 5, {fixedChild(20), fixedChild(20)}, {45, {{0, 20}, {25, 20}}});
    expectStack(0, 5, {fixedChild(20), endless(), endless(3)}, {33, {{0, 20}, {25, 0}, {30, 3}}});
}

TEST(LinearStack, AsksEveryChildForItsIdealWhereNothingIsOffered) {
    expectStack(std::nullopt, 5, {fixedChild(20), endless(), spacer(7), {{0, 12, 15}}},
                {64, {{0, 20}, {25, 10}, {52, 12}}});
}

TEST(LinearStack, IsEndlessOnlyWithAnEndlessChild) {
    for (const bool horizontal : {true, false}) {
        Frames frames;
        const auto lengthOf = [&](const Child& child) {
            const std::vector<View> members{viewOf(fixedChild(20), horizontal, frames),
                                            viewOf(child, horizontal, frames)};
            const Size size =
                horizontal ? sizeOf(HStack{.spacing = 1}({ViewList(members)}), {infinity, 9})
                           : sizeOf(VStack{.spacing = 1}({ViewList(members)}), {9, infinity});
            return horizontal ? size.width : size.height;
        };
        EXPECT_EQ(lengthOf({{0, 10, 30}}), 51);
        EXPECT_EQ(lengthOf(endless()), infinity);
        EXPECT_EQ(lengthOf(spacer(0)), infinity);
    }
}

TEST(LinearStack, OfAnyLengthHasGapsOfExactlyTheSpacing) {
    for (int half = 0; half <= 800; ++half) {
        const double length = half / 2.0;
        Frames frames;
        const View row = HStack{.spacing = 7}({
            rigid(30, 10, frames),
            greedy(frames),
            Probe{.width = {5, 40, 60}, .drawn = &frames},
            greedy(frames),
        });
        drawn(row, {length, 20});
        ASSERT_EQ(frames.size(), 4u);
        for (std::size_t i = 1; i < frames.size(); ++i)
            EXPECT_NEAR(frames[i].x - frames[i - 1].right(), 7, 1e-9) << length;
        EXPECT_NEAR(frames.back().right(), sizeOf(row, {length, 20}).width, 1e-9) << length;
        EXPECT_NEAR(frames.back().right(), std::max(length, 56.0), 1e-9) << length;
    }
}

TEST(LinearStack, DrawsOnlyTheChildrenWithinACardsReach) {
    Frames frames;
    const View column = VStack{.spacing = 0}({
        forEach(std::vector<int>(1000), [&](int) { return rigid(10, 10, frames); }),
    });
    const support::FixedTextMeasurer measurer;
    LayoutContext context(measurer, 2);
    Recorder recorder({100, 100});
    // As a card puts what is too tall: in the middle, sticking out above and below.
    column.draw({{45, -4950, 10, 10000}, {100, 100}}, context, recorder);
    ASSERT_FALSE(frames.empty());
    EXPECT_LE(frames.size(), 32u);
    EXPECT_LE(frames.front().y, -90);
    EXPECT_GE(frames.back().bottom(), 190);
}

}  // namespace
}  // namespace views

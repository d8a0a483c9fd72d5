#include "platform/views/Laid.hpp"
#include "platform/views/trees/ExpectedLayout.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <cstddef>

namespace views {
namespace {

constexpr int trees = 4000;
constexpr int offersEach = 4;

/// Runs `check(view, tree, offer, drawn frames)` for many trees and offers, always the same.
template <class Check>
void forManyTrees(const Check& check) {
    std::mt19937 random(20010101);
    for (int i = 0; i < trees && !::testing::Test::HasFailure(); ++i) {
        const Tree tree = randomTree(random, 4);
        Frames drawn;
        const View view = viewOf(tree, drawn);
        for (int j = 0; j < offersEach; ++j) {
            const Proposal offer = randomProposal(random);
            SCOPED_TRACE(::testing::Message()
                         << "tree " << i << ", offered " << ::testing::PrintToString(offer));
            check(view, tree, offer, drawn);
        }
    }
}

bool isFinite(const Proposal& offer) {
    return std::isfinite(offer.width.value_or(0)) && std::isfinite(offer.height.value_or(0));
}

void expectNear(double value, double expected) {
    if (std::isinf(expected))
        EXPECT_EQ(value, expected);
    else
        EXPECT_NEAR(value, expected, 1e-6);
}

TEST(RandomTrees, SizesAreNeverNegativeAndFiniteForFiniteOffers) {
    forManyTrees([](const View& view, const Tree&, const Proposal& offer, Frames&) {
        const Size size = sizeOf(view, offer);
        EXPECT_GE(size.width, 0);
        EXPECT_GE(size.height, 0);
        if (isFinite(offer)) {
            EXPECT_TRUE(std::isfinite(size.width));
            EXPECT_TRUE(std::isfinite(size.height));
        }
    });
}

TEST(RandomTrees, TakeTheirFixedLengthsOfEveryOffer) {
    std::size_t fixed = 0;
    forManyTrees([&](const View& view, const Tree&, const Proposal& offer, Frames&) {
        const support::FixedTextMeasurer measurer;
        LayoutContext context(measurer, 2);
        const auto width = view.node().fixedLength(Axis::horizontal, offer.height, context);
        const auto height = view.node().fixedLength(Axis::vertical, offer.width, context);
        for (const auto& any : {std::optional<double>(), std::optional(0.0), std::optional(7.0),
                                std::optional(infinity)}) {
            if (width) {
                EXPECT_EQ(sizeOf(view, {any, offer.height}).width, *width);
            }
            if (height) {
                EXPECT_EQ(sizeOf(view, {offer.width, any}).height, *height);
            }
        }
        fixed += width.has_value() + height.has_value();
    });
    EXPECT_GT(fixed, 1000u);
}

TEST(RandomTrees, AnswerTheSameHoweverOftenAndInWhateverOrderTheyAreAsked) {
    forManyTrees([](const View& view, const Tree&, const Proposal& offer, Frames& drawn) {
        const support::FixedTextMeasurer measurer;
        LayoutContext context(measurer, 2);
        const Size first = view.sizeThatFits(offer, context);
        view.sizeThatFits({0, infinity}, context);
        view.sizeThatFits({}, context);
        Recorder recorder({1000, 1000});
        view.draw({{0, 0, 50, 50}, {50, 50}}, context, recorder);
        drawn.clear();
        EXPECT_EQ(view.sizeThatFits(offer, context), first);
        EXPECT_EQ(sizeOf(view, offer), first);
    });
}

TEST(RandomTrees, TakeTheSizesAndBaselinesTheRulesGive) {
    forManyTrees([](const View& view, const Tree& tree, const Proposal& offer, Frames&) {
        const Size expected = expectedSize(tree, offer);
        const Size size = sizeOf(view, offer);
        expectNear(size.width, expected.width);
        expectNear(size.height, expected.height);
        expectNear(baselineOf(view, offer), expectedBaseline(tree, offer));
    });
}

TEST(RandomTrees, PutEveryLeafWhereTheRulesPutIt) {
    std::size_t leaves = 0;
    forManyTrees([&](const View& view, const Tree& tree, const Proposal& offer, Frames& frames) {
        if (!isFinite(offer))
            return;
        frames.clear();
        drawn(view, offer);
        Frames expected;
        const Size size = expectedSize(tree, offer);
        expectLeaves(tree, {{0, 0, size.width, size.height}, offer}, expected);
        ASSERT_EQ(frames.size(), expected.size());
        for (std::size_t i = 0; i < frames.size(); ++i) {
            SCOPED_TRACE(::testing::Message() << "leaf " << i);
            expectNear(frames[i].x, expected[i].x);
            expectNear(frames[i].y, expected[i].y);
            expectNear(frames[i].width, expected[i].width);
            expectNear(frames[i].height, expected[i].height);
        }
        leaves += frames.size();
    });
    EXPECT_GT(leaves, 10000u);
}

}  // namespace
}  // namespace views

#include "platform/views/layout/StackLayout.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace views {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr Flexibility rigidChild(double length) {
    return {length, length};
}
constexpr Flexibility spacer(double least) {
    return {least, infinity, true};
}

/// The offers that children get who take what they can of them, in declaration order.
std::vector<double> offers(double length, const std::vector<Flexibility>& children) {
    std::vector<double> offers(children.size(), -1);
    shareLength(length, children, [&](std::size_t i, double offer) {
        offers[i] = offer;
        return std::clamp(offer, children[i].shortest, children[i].longest);
    });
    return offers;
}

TEST(ChoosingOrder, TheLeastFlexibleFirst) {
    const std::vector<Flexibility> children{{0, 50}, {20, 30}, {0, infinity}, rigidChild(90)};
    EXPECT_THAT(choosingOrder(children), ElementsAre(3, 1, 0, 2));
}

TEST(ChoosingOrder, OfTheUnlimitedTheOneWithTheLargerMinimumFirst) {
    const std::vector<Flexibility> children{{0, infinity}, {5, infinity}, {60, infinity}};
    EXPECT_THAT(choosingOrder(children), ElementsAre(2, 1, 0));
}

TEST(ChoosingOrder, TiesAsDeclared) {
    const std::vector<Flexibility> children{
        {60, 140}, {0, infinity}, {0, 80}, {0, infinity}, {10, 90}};
    EXPECT_THAT(choosingOrder(children), ElementsAre(0, 2, 4, 1, 3));
}

TEST(ChoosingOrder, SpacersLastHoweverRigidTheyAre) {
    const std::vector<Flexibility> children{spacer(90), {0, infinity}, spacer(100), {0, 10}};
    EXPECT_THAT(choosingOrder(children), ElementsAre(3, 1, 2, 0));
}

TEST(ChoosingOrder, OfNoneIsEmpty) {
    EXPECT_THAT(choosingOrder({}), IsEmpty());
}

TEST(ShareLength, OffersEqualPartsOfWhatIsLeft) {
    EXPECT_THAT(offers(90, {{0, infinity}, {0, infinity}, {0, infinity}}), ElementsAre(30, 30, 30));
    EXPECT_THAT(offers(100, {{0, infinity}, rigidChild(20)}), ElementsAre(80, 50));
    EXPECT_THAT(offers(100, {{0, 30}, {0, infinity}}), ElementsAre(50, 70));
}

TEST(ShareLength, WhatOneTakesBeyondItsPartTheNextDoesNotGet) {
    EXPECT_THAT(offers(100, {{0, infinity}, {60, infinity}}), ElementsAre(40, 50));
    EXPECT_THAT(offers(30, {rigidChild(20), rigidChild(20), {0, 5}}), ElementsAre(10, 5, 0));
}

TEST(ShareLength, KeepsTheLeastLengthsOfSpacersBack) {
    EXPECT_THAT(offers(100, {{0, 95}, spacer(20)}), ElementsAre(80, 20));
    EXPECT_THAT(offers(100, {spacer(0), rigidChild(20), spacer(50)}), ElementsAre(30, 50, 40));
    EXPECT_THAT(offers(10, {{0, 95}, spacer(20)}), ElementsAre(0, 10));
}

TEST(ShareLength, WithoutOthersSpacersShareAll) {
    EXPECT_THAT(offers(100, {spacer(0), spacer(0)}), ElementsAre(50, 50));
}

TEST(ShareLength, NeverOffersLessThanNothing) {
    EXPECT_THAT(offers(-15, {{0, 95}, {0, infinity}, spacer(4)}), ElementsAre(0, 0, 0));
}

TEST(ShareLength, OfAnEndlessLengthOffersAllToEach) {
    EXPECT_THAT(offers(infinity, {{0, 95}, {0, infinity}, spacer(4)}),
                ElementsAre(infinity, infinity, infinity));
}

}  // namespace
}  // namespace views

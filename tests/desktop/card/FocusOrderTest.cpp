#include "desktop/PaintedWidgets.hpp"
#include "desktop/card/FocusOrder.hpp"

#include <gtest/gtest.h>

namespace desktop {
namespace {

/// Two rows of a volume card: minus, plus and mute, under a title.
const std::vector<remote::Element> rows{
    text("Title", {12, 12, 100, 14}),
    button("Minus", {89, 35, 22, 22}),
    button("Plus", {261, 35, 22, 22}),
    button("Mute A", {326, 35, 26, 22}),
    text("B", {12, 66, 60, 15}),
    button("Minus", {89, 66, 22, 22}),
    button("Plus", {261, 66, 22, 22}, false),
    button("Mute B", {326, 66, 26, 22}),
};

TEST(FocusOrder, TabGoesThroughTheEnabledButtonsInTheirOrder) {
    std::vector<std::size_t> forward;
    for (auto at = nextFocus(rows, {}, FocusMove::forward); at;
         at = nextFocus(rows, at, FocusMove::forward))
        forward.push_back(*at);
    EXPECT_EQ(forward, (std::vector<std::size_t>{1, 2, 3, 5, 7}));
    std::vector<std::size_t> backward;
    for (auto at = nextFocus(rows, {}, FocusMove::backward); at;
         at = nextFocus(rows, at, FocusMove::backward))
        backward.push_back(*at);
    EXPECT_EQ(backward, (std::vector<std::size_t>{7, 5, 3, 2, 1}));
}

TEST(FocusOrder, ArrowsGoToTheNearestButtonOnThatSide) {
    EXPECT_EQ(nextFocus(rows, 1, FocusMove::right), 2u);
    EXPECT_EQ(nextFocus(rows, 2, FocusMove::left), 1u);
    EXPECT_EQ(nextFocus(rows, 3, FocusMove::down), 7u);
    EXPECT_EQ(nextFocus(rows, 7, FocusMove::up), 3u);
    EXPECT_EQ(nextFocus(rows, 5, FocusMove::right), 7u) << "a disabled button is passed over";
    EXPECT_EQ(nextFocus(rows, 1, FocusMove::left), std::nullopt);
    EXPECT_EQ(nextFocus(rows, 1, FocusMove::up), std::nullopt);
    EXPECT_EQ(nextFocus(rows, {}, FocusMove::down), 1u);
}

TEST(FocusOrder, StaysInItsPlaceWhenOnlyLabelsChange) {
    auto after = rows;
    after[3].label = "Unmute A";
    EXPECT_EQ(focusAfterChange(rows, 3, after), 3u);
}

TEST(FocusOrder, FollowsTheLabelWhenElementsComeAndGo) {
    auto after = rows;
    after.erase(after.begin() + 1, after.begin() + 5);
    EXPECT_EQ(focusAfterChange(rows, 7, after), 3u);
    EXPECT_EQ(focusAfterChange(after, 3, rows), 7u);
}

TEST(FocusOrder, GoesToTheNearestButtonWhenItsOwnIsGoneOrDisabled) {
    auto disabled = rows;
    disabled[3].enabled = false;
    EXPECT_EQ(focusAfterChange(rows, 3, disabled), 2u);
    auto gone = rows;
    gone.pop_back();
    EXPECT_EQ(focusAfterChange(rows, 7, gone), 5u);
    EXPECT_EQ(focusAfterChange(rows, 7, {}), std::nullopt);
    EXPECT_EQ(focusAfterChange(rows, 7, {rows[0]}), std::nullopt);
}

}  // namespace
}  // namespace desktop

#include "platform/views/Laid.hpp"
#include "platform/views/Probe.hpp"
#include "platform/views/controls/Button.hpp"
#include "platform/views/stacks/Stacks.hpp"
#include "platform/views/text/Text.hpp"

#include <gtest/gtest.h>

namespace views {
namespace {

constexpr Color amber{0.9, 0.7, 0.3};

TEST(Opacity, DrawsTheViewAsOneGroup) {
    const View pair = HStack{}({Color(amber), Circle{}.fill(amber)});
    EXPECT_EQ(drawn(pair.opacity(0.45), {20, 10}).drawing,
              (std::vector<Command>{Group{0.45, drawn(pair, {20, 10}).drawing}}));
    EXPECT_EQ(sizeOf(pair.opacity(0.45), {20, 10}), (Size{20, 10}));
}

TEST(Opacity, OfOneMakesNoGroup) {
    EXPECT_EQ(drawn(Color(amber).body().opacity(1), {20, 10}).drawing,
              (std::vector<Command>{FillShape{Rectangle{}, {0, 0, 20, 10}, amber}}));
}

TEST(Opacity, OfAViewThatDrawsNothingMakesNoGroup) {
    EXPECT_EQ(drawn(Color::clear().body().opacity(0.5), {20, 10}).drawing, std::vector<Command>{});
}

TEST(Opacity, OfAColourIsItsAlpha) {
    EXPECT_EQ(Color(amber).opacity(0.14).opacity(0.5), (Color{0.9, 0.7, 0.3, 0.07}));
}

TEST(Offset, MovesWhatIsDrawnAndPressedButNotTheLayout) {
    const View knob = Button({.identifier = "A"}, Text("8").font({.size = 10})).offset(20, -3);
    const View row = HStack{}({knob, Color(amber).body().frame({.width = 7, .height = 4})});
    EXPECT_EQ(sizeOf(row, {100, 100}), (Size{12, 13}));
    const Scene scene = drawn(row, {100, 100});
    EXPECT_EQ(std::get<DrawText>(scene.drawing.at(0).alternatives()).frame, (Rect{20, -3, 5, 13}));
    EXPECT_EQ(std::get<FillShape>(scene.drawing.at(1).alternatives()).frame, (Rect{5, 4.5, 7, 4}));
    EXPECT_EQ(scene.controls.at(0).frame, (Rect{20, -3, 5, 13}));
    EXPECT_EQ(scene.accessibility.at(0).frame, (Rect{20, -3, 5, 13}));
}

TEST(FixedSize, OffersNothingOnTheFixedAxes) {
    Frames frames;
    const View view = greedy(frames);
    EXPECT_EQ(sizeOf(view.fixedSize({}), {90, 80}), (Size{10, 10}));
    EXPECT_EQ(sizeOf(view.fixedSize({.horizontal = false}), {90, 80}), (Size{90, 10}));
    EXPECT_EQ(sizeOf(view.fixedSize({.vertical = false}), {90, 80}), (Size{10, 80}));
    EXPECT_EQ(sizeOf(view.fixedSize({false, false}), {90, 80}), (Size{90, 80}));
}

TEST(FixedSize, LetsATextHaveAllItsLines) {
    const View text =
        Text("uno dos tres").font({.size = 10}).fixedSize({.horizontal = false, .vertical = true});
    EXPECT_EQ(sizeOf(text, {20, 13}), (Size{20, 39}));
    EXPECT_EQ(only<DrawText>(drawn(text, {20, 13}).drawing).lines,
              (std::vector<std::string>{"uno", "dos", "tres"}));
}

TEST(ContainerBackground, IsTheColourOfTheCard) {
    const View view = Color(amber).body().frame({.width = 5, .height = 5});
    const Scene scene = drawn(view.containerBackground({0.1, 0.2, 0.3}), {100, 100});
    EXPECT_EQ(scene.background, (Color{0.1, 0.2, 0.3}));
    EXPECT_EQ(scene.drawing, drawn(view, {100, 100}).drawing);
    EXPECT_EQ(drawn(view, {100, 100}).background, Color::clear());
}

}  // namespace
}  // namespace views

#include "platform/views/Laid.hpp"
#include "platform/views/controls/Button.hpp"
#include "platform/views/stacks/Stacks.hpp"
#include "platform/views/text/Text.hpp"

#include <gtest/gtest.h>

namespace views {
namespace {

const intents::ArchivedAction press{"PonerVolumen", {{"clave", std::string("a")}, {"nivel", 0.5}}};

// A character of this is 5 points wide, a line 13 high.
View label(const char* text) {
    return Text(text).font({.size = 10});
}

Control controlOf(const Button& button) {
    return drawn(button, {}).controls.at(0);
}

TEST(Button, IsItsLabel) {
    const View content = label("uno").frame({.width = 22, .height = 16});
    const Button button(press, content);
    EXPECT_EQ(sizeOf(button, {100, 100}), (Size{22, 16}));
    EXPECT_EQ(baselineOf(button, {100, 100}), baselineOf(content, {100, 100}));
    EXPECT_EQ(drawn(button, {100, 100}).drawing, drawn(content, {100, 100}).drawing);
}

TEST(Button, CanBePressedOnTheFrameOfItsLabel) {
    const View content = label("uno").frame({.width = 22, .height = 16});
    EXPECT_EQ(controlOf(Button(press, content)), (Control{{0, 0, 22, 16}, "uno", true, press}));
}

TEST(Button, CanBePressedWhereItsLabelIsClear) {
    const Scene scene = drawn(Button(press, Color::clear()), {10, 16});
    EXPECT_EQ(scene.drawing, std::vector<Command>{});
    EXPECT_EQ(scene.controls, (std::vector<Control>{{{0, 0, 10, 16}, "", true, press}}));
    EXPECT_EQ(
        scene.accessibility,
        (std::vector<AccessibilityElement>{{AccessibilityRole::button, "", true, {0, 0, 10, 16}}}));
}

TEST(Button, IsSpokenAsOneElementWithItsTextsJoined) {
    const View content = VStack{}({label("uno"), label(""), HStack{}({label("dos"), label("3")})});
    const Scene scene = drawn(Button(press, content), {});
    EXPECT_EQ(scene.accessibility,
              (std::vector<AccessibilityElement>{
                  {AccessibilityRole::button, "uno, dos, 3", true, {0, 0, 20, 39}}}));
    EXPECT_EQ(scene.controls.at(0).label, "uno, dos, 3");
}

TEST(Button, IsSpokenByItsAccessibilityLabelInstead) {
    const Scene scene = drawn(Button(press, label("-")).accessibilityLabel("Bajar"), {});
    EXPECT_EQ(scene.accessibility.size(), 1u);
    EXPECT_EQ(scene.accessibility.at(0).label, "Bajar");
    EXPECT_EQ(scene.controls.at(0).label, "Bajar");
}

TEST(Button, DisabledLooksTheSameAndSaysSo) {
    const Button button(press, label("uno"));
    const Scene scene = drawn(button.disabled(true), {});
    EXPECT_EQ(scene.drawing, drawn(button, {}).drawing);
    EXPECT_FALSE(scene.controls.at(0).enabled);
    EXPECT_FALSE(scene.accessibility.at(0).enabled);
    EXPECT_TRUE(controlOf(button.disabled(true).disabled(false)).enabled);
}

TEST(Button, InAGroupStaysAControl) {
    const Scene scene = drawn(Button(press, label("uno").opacity(0.45)), {});
    EXPECT_EQ(scene.controls.at(0).label, "uno");
    EXPECT_EQ(only<Group>(scene.drawing).drawing.size(), 1u);
    EXPECT_EQ(drawn(Button(press, label("uno")).opacity(0.45), {}), scene);
}

}  // namespace
}  // namespace views

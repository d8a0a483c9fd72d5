#include "platform/views/scene/HitTest.hpp"

#include <gtest/gtest.h>

namespace views {
namespace {

std::string labelAt(const Scene& scene, Point point) {
    const Control* control = controlAt(scene, point);
    return control ? control->label : "none";
}

TEST(HitTest, MeetsTheTopmostControl) {
    const Scene scene{
        .size = {100, 50},
        .controls = {{{0, 0, 60, 40}, "below", true, {}}, {{40, 0, 60, 40}, "above", false, {}}}};
    EXPECT_EQ(labelAt(scene, {10, 10}), "below");
    EXPECT_EQ(labelAt(scene, {50, 10}), "above");
    EXPECT_EQ(labelAt(scene, {90, 10}), "above");
    EXPECT_EQ(labelAt(scene, {10, 45}), "none");
    EXPECT_EQ(labelAt({}, {0, 0}), "none");
}

TEST(HitTest, BetweenNeighboursMeetsExactlyOne) {
    Scene scene{.size = {100, 16}};
    for (int i = 0; i < 10; ++i)
        scene.controls.push_back({{i * 10.0, 0, 10, 16}, std::to_string(i), true, {}});
    for (int half = 0; half < 200; ++half)
        EXPECT_EQ(labelAt(scene, {half / 2.0, 8}), std::to_string(half / 20));
    EXPECT_EQ(labelAt(scene, {100, 8}), "none");
}

}  // namespace
}  // namespace views

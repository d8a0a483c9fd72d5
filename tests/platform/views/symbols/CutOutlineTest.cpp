#include "platform/views/symbols/CutOutline.hpp"

#include <gtest/gtest.h>

namespace views {
namespace {

Outline square() {
    return {MoveTo{{0, 0}}, LineTo{{4, 0}}, LineTo{{4, 4}}, LineTo{{0, 4}}, ClosePath{}};
}

TEST(CutOutline, KeepsTheSideThatTheHalfPlaneLooksTo) {
    EXPECT_EQ(
        cutOutline(square(), {{1, 0}, {1, 0}}),
        (Outline{MoveTo{{1, 0}}, LineTo{{4, 0}}, LineTo{{4, 4}}, LineTo{{1, 4}}, ClosePath{}}));
    EXPECT_EQ(
        cutOutline(square(), {{1, 0}, {-1, 0}}),
        (Outline{MoveTo{{0, 0}}, LineTo{{1, 0}}, LineTo{{1, 4}}, LineTo{{0, 4}}, ClosePath{}}));
}

TEST(CutOutline, KeepsAllOrNothingWhereTheLineMissesTheOutline) {
    EXPECT_EQ(cutOutline(square(), {{-1, 0}, {1, 0}}), square());
    EXPECT_EQ(cutOutline(square(), {{-1, 0}, {-1, 0}}), Outline{});
}

TEST(CutOutline, FollowsCurves) {
    const Outline arch{MoveTo{{0, 0}}, CurveTo{{0, 4}, {4, 4}, {4, 0}}, ClosePath{}};
    const Outline cut = cutOutline(arch, {{0, 2}, {0, 1}});
    ASSERT_GT(cut.size(), 4u);
    double highest = 0;
    for (const OutlineElement& element : cut) {
        if (const auto* line = std::get_if<LineTo>(&element)) {
            EXPECT_GE(line->to.y, 2 - 1e-12);
            highest = std::max(highest, line->to.y);
        }
    }
    EXPECT_NEAR(highest, 3, 1e-12);
}

}  // namespace
}  // namespace views

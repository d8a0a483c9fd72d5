#include "platform/views/geometry/Geometry.hpp"

#include <gtest/gtest.h>

namespace views {
namespace {

TEST(Rect, KnowsItsFarEdges) {
    const Rect rect{3, 4, 10, 20};
    EXPECT_EQ(rect.right(), 13);
    EXPECT_EQ(rect.bottom(), 24);
    EXPECT_EQ(rect.size(), (Size{10, 20}));
}

TEST(Rect, MovesEveryEdgeInwards) {
    EXPECT_EQ((Rect{3, 4, 10, 20}.inset(0.5)), (Rect{3.5, 4.5, 9, 19}));
    EXPECT_EQ((Rect{3, 4, 10, 20}.inset(-1)), (Rect{2, 3, 12, 22}));
}

TEST(Rect, MovesAsAWhole) {
    EXPECT_EQ((Rect{3, 4, 10, 20}.movedBy(-1, 2)), (Rect{2, 6, 10, 20}));
}

TEST(Rect, ContainsItsNearEdgesButNotItsFarOnes) {
    const Rect rect{3, 4, 10, 20};
    EXPECT_TRUE(rect.contains({3, 4}));
    EXPECT_TRUE(rect.contains({12.9, 23.9}));
    EXPECT_FALSE(rect.contains({13, 10}));
    EXPECT_FALSE(rect.contains({5, 24}));
    EXPECT_FALSE(rect.contains({2.9, 10}));
    EXPECT_FALSE((Rect{3, 4, 0, 20}.contains({3, 4})));
}

}  // namespace
}  // namespace views

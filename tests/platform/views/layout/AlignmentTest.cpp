#include "platform/views/layout/Alignment.hpp"
#include "platform/views/layout/Proposal.hpp"

#include <gtest/gtest.h>

namespace views {
namespace {

TEST(Alignment, PutsAChildAtAnEdgeOrInTheMiddle) {
    EXPECT_EQ(alignedOffset(HorizontalAlignment::leading, 100, 30), 0);
    EXPECT_EQ(alignedOffset(HorizontalAlignment::center, 100, 30), 35);
    EXPECT_EQ(alignedOffset(HorizontalAlignment::trailing, 100, 30), 70);
    EXPECT_EQ(alignedOffset(VerticalAlignment::top, 100, 30), 0);
    EXPECT_EQ(alignedOffset(VerticalAlignment::center, 100, 30), 35);
    EXPECT_EQ(alignedOffset(VerticalAlignment::bottom, 100, 30), 70);
    EXPECT_EQ(alignedOffset(VerticalAlignment::firstTextBaseline, 100, 30), 0);
}

TEST(Alignment, LetsAChildThatIsTooLargeStickOut) {
    EXPECT_EQ(alignedOffset(HorizontalAlignment::leading, 20, 30), 0);
    EXPECT_EQ(alignedOffset(HorizontalAlignment::center, 20, 30), -5);
    EXPECT_EQ(alignedOffset(VerticalAlignment::bottom, 20, 30), -10);
}

TEST(Alignment, PutsAnEndlessChildAtTheEdgeOfAnEndlessContainer) {
    EXPECT_EQ(alignedOffset(HorizontalAlignment::center, infinity, infinity), 0);
    EXPECT_EQ(alignedOffset(VerticalAlignment::bottom, infinity, infinity), 0);
}

TEST(Alignment, IsTheMiddleUnlessSaid) {
    EXPECT_EQ(Alignment{}, (Alignment{HorizontalAlignment::center, VerticalAlignment::center}));
    EXPECT_EQ(Alignment::leading(),
              (Alignment{HorizontalAlignment::leading, VerticalAlignment::center}));
    EXPECT_EQ(Alignment::trailing(),
              (Alignment{HorizontalAlignment::trailing, VerticalAlignment::center}));
}

}  // namespace
}  // namespace views

#include "platform/views/text/Font.hpp"

#include <gtest/gtest.h>

namespace views {
namespace {

TEST(Font, HasTheSystemFacesLines) {
    struct Line {
        double size;
        double height;
        double baseline;
    };
    const Line lines[] = {
        {9, 11, 9},   {10, 13, 10},   {10.5, 13, 10}, {11, 14, 11}, {11.5, 14, 11},
        {12, 15, 12}, {12.5, 15, 12}, {17, 20, 16},   {19, 23, 18}, {26, 31, 25},
    };
    for (const Line& line : lines) {
        for (const FontDesign design : {FontDesign::standard, FontDesign::monospaced}) {
            const Font font{.size = line.size, .weight = bold, .design = design};
            EXPECT_EQ(font.lineHeight(), line.height) << line.size;
            EXPECT_EQ(font.baseline(), line.baseline) << line.size;
        }
    }
}

TEST(Font, HasTheSystemFacesTracking) {
    const std::pair<double, double> trackings[] = {
        {9, 0.17},   {10, 0.12},  {11, 0.06},  {12, 0},     {13, -0.08},
        {14, -0.15}, {15, -0.23}, {16, -0.31}, {17, -0.43}, {18, -0.44},
        {19, -0.45}, {20, -0.45}, {22, -0.26}, {24, 0.07},  {26, 0.22},
    };
    for (const auto& [size, tracking] : trackings)
        EXPECT_DOUBLE_EQ(Font{.size = size}.sizeTracking(), tracking) << size;
}

TEST(Font, HasATrackingBetweenThoseOfTheSizesBesideIt) {
    EXPECT_DOUBLE_EQ(Font{.size = 10.5}.sizeTracking(), 0.09);
    EXPECT_DOUBLE_EQ(Font{.size = 11.5}.sizeTracking(), 0.03);
    EXPECT_DOUBLE_EQ(Font{.size = 12.5}.sizeTracking(), -0.04);
    EXPECT_DOUBLE_EQ(Font{.size = 21}.sizeTracking(), -0.355);
    EXPECT_DOUBLE_EQ(Font{.size = 25}.sizeTracking(), 0.145);
}

TEST(Font, KeepsTheTrackingOfTheLastKnownSizeBeyondIt) {
    EXPECT_DOUBLE_EQ(Font{.size = 6}.sizeTracking(), 0.17);
    EXPECT_DOUBLE_EQ(Font{.size = 40}.sizeTracking(), 0.22);
}

TEST(Font, HasNoTrackingOfItsOwnWhereItIsMonospaced) {
    for (double size = 8; size < 30; size += 0.5)
        EXPECT_EQ((Font{.size = size, .design = FontDesign::monospaced}.sizeTracking()), 0);
}

TEST(Font, HasTheMiddleOfItsCapitalsAboveTheBaseline) {
    EXPECT_DOUBLE_EQ(Font{.size = 10}.capMiddle(), 3.52);
}

}  // namespace
}  // namespace views

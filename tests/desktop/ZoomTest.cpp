#include "desktop/TestScreen.hpp"
#include "desktop/Zoom.hpp"

#include <gtest/gtest.h>

// After the others: its macros are common words.
// clang-format off
#include <gdk/x11/gdkx.h>

// clang-format on

namespace desktop {
namespace {

/// The units of a point where the user's resolution of texts is so many dots per inch.
double unitsAt(double dotsPerInch) {
    GdkDisplay* const display = gdk_display_get_default();
    g_object_set(gtk_settings_get_for_display(display), "gtk-xft-dpi",
                 static_cast<int>(dotsPerInch * 1024), nullptr);
    return unitsPerPoint(display, {});
}

struct Zoom : testing::Test {
    ~Zoom() override {
        gtk_settings_reset_property(gtk_settings_get_for_display(gdk_display_get_default()),
                                    "gtk-xft-dpi");
    }
};

TEST_F(Zoom, FollowsTheResolutionOfTextsInQuarters) {
    EXPECT_EQ(unitsAt(96), 1);
    EXPECT_EQ(unitsAt(107), 1);
    EXPECT_EQ(unitsAt(109), 1.25);
    EXPECT_EQ(unitsAt(144), 1.5);
    EXPECT_EQ(unitsAt(192), 2);
}

TEST_F(Zoom, NeverMakesCardsSmallerThanPlainOrMoreThanFourTimesAsLarge) {
    EXPECT_EQ(unitsAt(48), 1);
    EXPECT_EQ(unitsAt(384), 4);
    EXPECT_EQ(unitsAt(900), 4);
    EXPECT_EQ(unitsAt(-1.0 / 1024), 1) << "not known";
}

TEST_F(Zoom, MakesUpWhatAWantedScaleHasBeyondThePixelsOfAUnit) {
    GdkDisplay* const display = gdk_display_get_default();
    EXPECT_EQ(unitsPerPoint(display, 3), 3);
    gdk_x11_display_set_surface_scale(display, 2);
    EXPECT_EQ(unitsPerPoint(display, 3), 1.5);
    gdk_x11_display_set_surface_scale(display, 1);
}

}  // namespace
}  // namespace desktop

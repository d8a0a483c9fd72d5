#include "desktop/TestScreen.hpp"
#include "desktop/mount/X11Mount.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace desktop {
namespace {

/// A window of the size of a card, mounted on the desktop.
struct MountedWindow : testing::Test {
    MountedWindow() {
        gtk_window_set_resizable(window, FALSE);
        GtkWidget* card = gtk_box_new(GTK_ORIENTATION_VERTICAL, 0);
        gtk_widget_set_size_request(card, 170, 170);
        gtk_window_set_child(window, card);
        mount.prepare(window);
    }
    ~MountedWindow() override { gtk_window_destroy(window); }

    void showAt(views::Point point) {
        mount.move(window, nullptr, point);
        gtk_widget_show(GTK_WIDGET(window));
        screen::settle();
    }
    bool isAt(views::Point point) const {
        return screen::waitFor([&] { return screen::cornerOf(window) == point; });
    }

    X11Mount mount{gdk_display_get_default()};
    GtkWindow* window = GTK_WINDOW(gtk_window_new());
};

TEST_F(MountedWindow, LiesBelowAndIsInNoList) {
    showAt({100, 100});
    for (const char* state :
         {"_NET_WM_STATE_BELOW", "_NET_WM_STATE_SKIP_TASKBAR", "_NET_WM_STATE_SKIP_PAGER"})
        EXPECT_TRUE(screen::waitFor([&] {
            return screen::hasState(screen::windowOf(window), state);
        })) << state;
}

TEST_F(MountedWindow, IsOnEveryDesktop) {
    showAt({100, 100});
    EXPECT_TRUE(screen::waitFor([&] {
        return screen::property(screen::windowOf(window), "_NET_WM_DESKTOP") ==
               std::vector<unsigned long>{0xFFFFFFFF};
    }));
}

TEST_F(MountedWindow, StandsExactlyWhereItIsPut) {
    for (const views::Point point : {views::Point{0, 0}, {313, 207}, {1110, 630}}) {
        showAt(point);
        EXPECT_TRUE(isAt(point)) << point.x;
        gtk_widget_hide(GTK_WIDGET(window));
        screen::settle();
    }
    showAt({10, 20});
    for (int x = 10; x < 400; x += 37) {
        mount.move(window, nullptr, {static_cast<double>(x), 20});
        EXPECT_TRUE(isAt({static_cast<double>(x), 20}));
    }
}

TEST_F(MountedWindow, DoesNotTakeTheKeyboardWhenItAppears) {
    GtkWindow* typing = GTK_WINDOW(gtk_window_new());
    gtk_window_set_child(typing, gtk_label_new("typing here"));
    gtk_window_present(typing);
    EXPECT_TRUE(screen::waitFor([&] { return gtk_window_is_active(typing); }));
    showAt({600, 300});
    EXPECT_TRUE(isAt({600, 300}));
    EXPECT_TRUE(gtk_window_is_active(typing));
    gtk_window_destroy(typing);
}

TEST_F(MountedWindow, OtherWindowsLieOverIt) {
    showAt({300, 300});
    GtkWindow* other = GTK_WINDOW(gtk_window_new());
    gtk_window_present(other);
    screen::activate(other);
    screen::activate(window);
    const auto height = [](GtkWindow* one) {
        const auto stack = screen::property(screen::rootWindow(), "_NET_CLIENT_LIST_STACKING");
        return std::find(stack.begin(), stack.end(), screen::windowOf(one)) - stack.begin();
    };
    EXPECT_TRUE(screen::waitFor([&] { return height(window) < height(other); }));
    gtk_window_destroy(other);
}

TEST_F(MountedWindow, IsCutToItsOutlineWhereNothingIsTransparent) {
    const std::uint32_t behind = screen::pixel(100, 100);
    showAt({100, 100});
    mount.cut(window, {170, 170}, 28);
    EXPECT_TRUE(screen::waitFor([&] { return screen::pixel(185, 185) != behind; }));
    for (const int x : {100, 105, 264, 269})
        for (const int y : {100, 102, 267, 269})
            EXPECT_TRUE(screen::waitFor([&] { return screen::pixel(x, y) == behind; }))
                << x << " " << y;
}

TEST_F(MountedWindow, KnowsWhereThePointerIs) {
    screen::movePointer(321, 123);
    EXPECT_EQ(mount.pointer(), (views::Point{321, 123}));
}

}  // namespace
}  // namespace desktop

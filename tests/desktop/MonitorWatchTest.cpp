#include "desktop/MonitorWatch.hpp"
#include "desktop/TestScreen.hpp"
#include "desktop/gtk/Reference.hpp"
#include "desktop/mount/X11Mount.hpp"

#include <gtest/gtest.h>

#include <optional>
#include <utility>
#include <vector>

// After the others: its macros are common words.
// clang-format off
#include <X11/Xatom.h>
#include <gdk/x11/gdkx.h>

// clang-format on

namespace desktop {
namespace {

struct WatchedMonitors : testing::Test {
    GdkDisplay* display = gdk_display_get_default();
    GListModel* all = gdk_display_get_monitors(display);
    Reference<GdkMonitor> monitor =
        adopted(static_cast<GdkMonitor*>(g_list_model_get_item(all, 0)));
    X11Mount mount{display};
    int changes = 0;
    std::optional<MonitorWatch> watch{std::in_place, display, mount, [this] { ++changes; }};
};

TEST_F(WatchedMonitors, AreOthers) {
    g_list_model_items_changed(all, 0, 1, 1);
    EXPECT_EQ(changes, 1);
}

TEST_F(WatchedMonitors, TakeAnotherSize) {
    for (const char* property : {"geometry", "scale-factor"}) {
        changes = 0;
        g_object_notify(G_OBJECT(monitor.get()), property);
        EXPECT_EQ(changes, 1) << property;
    }
    g_list_model_items_changed(all, 0, 1, 1);
    changes = 0;
    g_object_notify(G_OBJECT(monitor.get()), "geometry");
    EXPECT_EQ(changes, 1) << "and once only, whatever there was before";
}

TEST_F(WatchedMonitors, HavePanels) {
    const auto leave = [&](long top) {
        // The window manager says it of each of its four desktops.
        std::vector<long> areas;
        for (int desktop = 0; desktop < 4; ++desktop)
            areas.insert(areas.end(), {0, top, 1280, 800 - top});
        Display* server = gdk_x11_display_get_xdisplay(display);
        XChangeProperty(server, DefaultRootWindow(server),
                        gdk_x11_get_xatom_by_name_for_display(display, "_NET_WORKAREA"),
                        XA_CARDINAL, 32, PropModeReplace,
                        reinterpret_cast<const unsigned char*>(areas.data()),
                        static_cast<int>(areas.size()));
    };
    screen::settle();
    for (const int top : {40, 0}) {
        changes = 0;
        leave(top);
        EXPECT_TRUE(screen::waitFor([&] { return changes > 0; }));
        EXPECT_EQ(mount.area(monitor.get()), (views::Rect{0, top * 1.0, 1280, 800 - top * 1.0}));
    }
}

TEST_F(WatchedMonitors, AreNobodysBusinessAfterwards) {
    watch.reset();
    g_object_notify(G_OBJECT(monitor.get()), "geometry");
    g_list_model_items_changed(all, 0, 1, 1);
    EXPECT_EQ(changes, 0);
}

}  // namespace
}  // namespace desktop

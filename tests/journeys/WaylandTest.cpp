#include "journeys/Compositor.hpp"
#include "journeys/Container.hpp"
#include "journeys/ScreenReader.hpp"
#include "journeys/UserHome.hpp"
#include "journeys/Waiting.hpp"
#include "journeys/WidgetHost.hpp"
#include "journeys/Widgets.hpp"
#include "support/PrivateSessionBus.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <optional>

namespace journeys {
namespace {

/// A user of Wayland, where windows stand where the compositor wants.
struct Wayland : testing::Test {
    Wayland() { container.publish(scene("sin-medir")); }

    bool hasAllWindows() {
        return soon([&] {
            const auto windows = compositor.windows();
            return std::ranges::all_of(
                widgets, [&](const Widget& widget) { return windows.contains(widget.name); });
        });
    }

    UserHome home;
    Container container;
    Compositor compositor;
    support::PrivateSessionBus bus;
};

TEST_F(Wayland, WidgetsAreOrdinaryWindowsWithAllTheirControls) {
    const WidgetHost host;
    ASSERT_TRUE(hasAllWindows());
    const ScreenReader reader;
    for (const Widget& widget : widgets) {
        const auto wanted = spokenByCommandLine(widget);
        EXPECT_TRUE(soon([&] { return spoken(reader.window(widget.name)) == wanted; }))
            << widget.name;
        compositor.raise(widget.name);
        const Picture card = drawnByCommandLine(widget);
        EXPECT_TRUE(soon([&] {
            return isSeenIn(card, compositor.picture(), compositor.windows()[widget.name]);
        })) << widget.name;
    }
}

TEST_F(Wayland, TheUserIsToldWhyOnlyOnce) {
    std::optional<WidgetHost> host(std::in_place);
    std::optional<ScreenReader> reader(std::in_place);
    const auto understood = reader->await("Widgets de Nurva", "Entendido");
    ASSERT_TRUE(understood);
    EXPECT_TRUE(reader->press(*understood));
    EXPECT_TRUE(soon([&] { return !compositor.windows().contains("Widgets de Nurva"); }));
    ASSERT_TRUE(hasAllWindows());
    ASSERT_EQ(host->quit(), 0);
    host.emplace();
    ASSERT_TRUE(hasAllWindows());
    EXPECT_FALSE(compositor.windows().contains("Widgets de Nurva"));
}

}  // namespace
}  // namespace journeys

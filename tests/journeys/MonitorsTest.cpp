#include "journeys/Container.hpp"
#include "journeys/Monitors.hpp"
#include "journeys/Panel.hpp"
#include "journeys/Screen.hpp"
#include "journeys/UserHome.hpp"
#include "journeys/Waiting.hpp"
#include "journeys/WidgetHost.hpp"
#include "journeys/Widgets.hpp"
#include "support/PrivateSessionBus.hpp"
#include "widgethost/Grid.hpp"
#include "widgethost/PlacementFile.hpp"

#include <gmock/gmock.h>

#include <optional>
#include <string>
#include <vector>

namespace journeys {
namespace {

using widgethost::Cell;
using widgethost::Grid;
using widgethost::MonitorIdentity;
using widgethost::Placement;
using widgethost::PlacementFile;

const MonitorIdentity left{"DUMMY0", 0, 0, 1280, 800};
const MonitorIdentity right{"DUMMY1", 1280, 0, 1280, 800};

/// The grid of a monitor without panels, at so many pixels a point.
Grid gridOf(const MonitorIdentity& monitor, double scale = 1) {
    return Grid({static_cast<double>(monitor.x) / scale, static_cast<double>(monitor.y) / scale,
                 static_cast<double>(monitor.width) / scale,
                 static_cast<double>(monitor.height) / scale});
}

/// Somebody with two monitors and a widget or two on each. Both monitors have one in the first
/// places of the second row.
struct MonitorsJourney : testing::Test {
    MonitorsJourney() {
        container.publish(scene("musica"));
        file().save(placed);
        host.emplace();
        EXPECT_TRUE(allAreAtHome());
    }
    ~MonitorsJourney() override {
        EXPECT_EQ(file().load(), placed) << "every widget has the place that the user gave it";
        EXPECT_EQ(host->quit(), 0);
    }

    PlacementFile file() const {
        return {home.folder.path() / "config/nurva-widgets/placement.json",
                [](const std::string& fault) { ADD_FAILURE() << fault; }};
    }
    bool stands(const Widget& widget, const Grid& grid, Cell cell, double scale = 1) const {
        const views::Point corner = grid.origin(cell);
        return soon([&] {
            const auto window = screen.window(widget.name);
            return window && window->x == std::lround(corner.x * scale) &&
                   window->y == std::lround(corner.y * scale);
        });
    }
    bool allAreAtHome() const {
        return stands(whatIsOn, gridOf(left), {3, 0}) && stands(profiles, gridOf(left), {0, 1}) &&
               stands(room, gridOf(right), {5, 3}) && stands(volume, gridOf(right), {0, 1});
    }
    /// All on the left monitor: those of the right one stand as near to their places as they can.
    bool allAreOnTheLeft() const {
        return stands(whatIsOn, gridOf(left), {3, 0}) && stands(profiles, gridOf(left), {0, 1}) &&
               stands(room, gridOf(left), {5, 3}) && stands(volume, gridOf(left), {0, 0});
    }

    Placement placed{.widgets = {{whatIsOn.kind, 1, left, 3, 0},
                                 {profiles.kind, 2, left, 0, 1},
                                 {room.kind, 1, right, 5, 3},
                                 {volume.kind, 2, right, 0, 1}}};
    UserHome home;
    Container container;
    Monitors monitors;
    Screen screen{{2560, 800}, monitors.server()};
    support::PrivateSessionBus bus;
    std::optional<WidgetHost> host;
};

TEST_F(MonitorsJourney, AWidgetOfAMonitorThatGoesAwayWaitsOnTheOtherAndReturns) {
    monitors.unplugRight();
    EXPECT_TRUE(allAreOnTheLeft());
    for (const Widget& widget : widgets)
        EXPECT_TRUE(isSeenAsDrawn(widget, screen)) << widget.name;
    monitors.plugInRight();
    EXPECT_TRUE(allAreAtHome());
    for (const Widget& widget : widgets)
        EXPECT_TRUE(isSeenAsDrawn(widget, screen)) << widget.name;
}

TEST_F(MonitorsJourney, AWidgetReturnsToAMonitorThatWasMissingAtTheStart) {
    monitors.unplugRight();
    ASSERT_TRUE(allAreOnTheLeft());
    ASSERT_EQ(host->quit(), 0);
    host.emplace();
    EXPECT_TRUE(allAreOnTheLeft());
    monitors.plugInRight();
    EXPECT_TRUE(allAreAtHome());
}

TEST_F(MonitorsJourney, AWidgetReturnsInTheSizeThatItHasMeanwhileTaken) {
    constexpr double larger = 1.5;
    monitors.unplugRight();
    ASSERT_TRUE(allAreOnTheLeft());
    screen.setResolution(144);
    // Of six by four cells, four by two have room.
    const Grid leftGrid = gridOf(left, larger);
    EXPECT_TRUE(stands(profiles, leftGrid, {0, 1}, larger));
    EXPECT_TRUE(stands(room, leftGrid, {3, 1}, larger));
    monitors.plugInRight();
    const Grid rightGrid = gridOf(right, larger);
    EXPECT_TRUE(stands(room, rightGrid, {3, 1}, larger));
    EXPECT_TRUE(stands(volume, rightGrid, {0, 1}, larger));
    EXPECT_TRUE(isSeenAsDrawn(volume, screen, larger));
    screen.setResolution(96);
    EXPECT_TRUE(allAreAtHome());
}

TEST_F(MonitorsJourney, TheLastOfManyChangesCounts) {
    for (int turn = 0; turn < times(4, 100); ++turn) {
        for (int change = 0; change < 4; ++change) {
            monitors.unplugRight();
            monitors.plugInRight();
        }
        EXPECT_TRUE(allAreAtHome()) << turn;
        monitors.unplugRight();
        monitors.plugInRight();
        monitors.unplugRight();
        EXPECT_TRUE(allAreOnTheLeft()) << turn;
        monitors.plugInRight();
    }
    EXPECT_TRUE(allAreAtHome());
}

TEST_F(MonitorsJourney, WidgetsStayOnAMonitorThatTakesAnotherSize) {
    monitors.shrinkRight();
    const Grid small({1280, 0, 800, 600});
    EXPECT_TRUE(stands(room, small, {3, 1}));
    EXPECT_TRUE(stands(volume, small, {0, 1}));
    monitors.plugInRight();
    EXPECT_TRUE(allAreAtHome());
}

TEST_F(MonitorsJourney, WidgetsGoWithTheirMonitorToAnotherPlace) {
    monitors.exchange();
    EXPECT_TRUE(stands(profiles, gridOf(right), {0, 1}));
    EXPECT_TRUE(stands(room, gridOf(left), {5, 3}));
    monitors.plugInLeft();
    monitors.plugInRight();
    EXPECT_TRUE(allAreAtHome());
}

TEST_F(MonitorsJourney, WidgetsAreThereAgainAfterAllMonitorsWereGone) {
    monitors.unplugRight();
    monitors.unplugLeft();
    monitors.plugInLeft();
    EXPECT_TRUE(allAreOnTheLeft());
    monitors.plugInRight();
    EXPECT_TRUE(allAreAtHome());
}

TEST_F(MonitorsJourney, WidgetsMakeWayForAPanelAndReturn) {
    {
        const Panel panel(100);
        const Grid below({0, 100, 1280, 700});
        EXPECT_TRUE(stands(whatIsOn, below, {3, 0}));
        EXPECT_TRUE(stands(profiles, below, {0, 1}));
        EXPECT_TRUE(stands(room, gridOf(right), {5, 3}));
    }
    EXPECT_TRUE(allAreAtHome());
}

TEST_F(MonitorsJourney, AWidgetThatIsMovedMeanwhileStaysWhereItIs) {
    monitors.unplugRight();
    ASSERT_TRUE(allAreOnTheLeft());
    const auto card = *screen.window(room.name);
    screen.click(card.x + card.width / 2, card.y + 10);
    ASSERT_TRUE(soon([&] { return screen.activeWindow() == room.name; }));
    screen.press({"Control_L", "Left"});
    EXPECT_TRUE(stands(room, gridOf(left), {4, 3}));
    monitors.plugInRight();
    EXPECT_TRUE(stands(volume, gridOf(right), {0, 1}));
    EXPECT_TRUE(stands(room, gridOf(left), {4, 3}));
    placed.widgets[2] = {room.kind, 1, left, 4, 3};
}

}  // namespace
}  // namespace journeys

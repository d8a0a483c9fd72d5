#include "desktop/Desk.hpp"
#include "desktop/PaintedWidgets.hpp"
#include "desktop/TestScreen.hpp"
#include "desktop/mount/X11Mount.hpp"
#include "support/TemporaryFolder.hpp"

#include <gmock/gmock.h>

#include <chrono>
#include <cmath>
#include <filesystem>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

// After the others: its macros are common words.
// clang-format off
#include <gdk/x11/gdkx.h>

// clang-format on

namespace desktop {
namespace {

using widgethost::Cell;
using widgethost::Grid;
using widgethost::Placement;
using widgethost::PlacementFile;

/// The screen of the tests has six columns and four rows.
const Grid grid({0, 0, 1280, 800});

struct DeskOnScreen : testing::Test {
    void open() {
        screen::movePointer(1279, 799);
        desk.emplace(Desk::Surroundings{.display = gdk_display_get_default(),
                                        .scale = scale,
                                        .onEmpty = [this] { isEmpty = true; },
                                        .patience = std::chrono::milliseconds(50)},
                     source, mount, file());
        desk->open();
        screen::settle();
    }
    PlacementFile file() {
        return {folder.path() / "placement.json",
                [this](const std::string& text) { reports.push_back(text); }};
    }
    void remember(std::vector<std::pair<std::string, Cell>> widgets) {
        Placement placement;
        for (const auto& [kind, cell] : widgets) {
            const std::int64_t span = Grid::span(source.sizeOf(kind));
            placement.widgets.push_back({kind, span, monitor(), cell.column, cell.row});
        }
        file().save(placement);
    }
    /// The cells by kind, as the file has them.
    std::map<std::string, std::pair<std::int64_t, std::int64_t>> remembered() {
        std::map<std::string, std::pair<std::int64_t, std::int64_t>> cells;
        const auto placement = file().load();
        for (const auto& widget : placement ? placement->widgets : Placement().widgets)
            cells[widget.kind] = {widget.column, widget.row};
        return cells;
    }
    static widgethost::MonitorIdentity monitor() {
        return Screens(gdk_display_get_default(), X11Mount(gdk_display_get_default()), 1)
            .monitors[0]
            .identity;
    }
    GtkWindow* window(std::size_t index) { return desk->cards()[index]->window(); }
    bool standsAt(std::size_t index, Cell cell) {
        return screen::waitFor(
            [&] { return screen::cornerOf(window(index)) == grid.origin(cell); });
    }
    void activateAction(std::size_t index, const char* name) {
        gtk_widget_activate_action(desk->cards()[index]->card().widget(), name, nullptr);
        screen::settle();
    }
    void drag(views::Point from, views::Point to) {
        screen::movePointer(from.x, from.y);
        screen::holdButton();
        screen::movePointer((from.x + to.x) / 2, (from.y + to.y) / 2);
        screen::movePointer(to.x, to.y);
        screen::releaseButton();
    }

    support::TemporaryFolder folder;
    std::vector<std::string> reports;
    PaintedWidgets source;
    X11Mount mount{gdk_display_get_default()};
    std::optional<double> scale;
    bool isEmpty = false;
    std::optional<Desk> desk;
};

TEST_F(DeskOnScreen, TheFirstTimeAllWidgetsStandInATidyBlock) {
    open();
    ASSERT_EQ(desk->cards().size(), 4u);
    EXPECT_TRUE(standsAt(0, {4, 0}));
    EXPECT_TRUE(standsAt(1, {4, 1}));
    EXPECT_TRUE(standsAt(2, {5, 0}));
    EXPECT_TRUE(standsAt(3, {4, 2}));
    EXPECT_EQ(remembered().size(), 4u);
    EXPECT_EQ(desk->gallery(), nullptr);
}

TEST_F(DeskOnScreen, WaitsForTheGalleryTheFirstTime) {
    const auto shelf = std::exchange(source.shelf, {});
    open();
    EXPECT_TRUE(desk->cards().empty());
    EXPECT_TRUE(screen::waitFor([&] { return desk->gallery() != nullptr; })) << "and says so";
    source.shelf = shelf;
    source.galleryChanged();
    EXPECT_TRUE(screen::waitFor([&] { return desk->cards().size() == 4; }));
}

TEST_F(DeskOnScreen, WidgetsStandWhereTheyStoodBeforeTheGalleryIsKnown) {
    remember({{"b", {1, 3}}, {"a", {0, 0}}});
    source.shelf.clear();
    open();
    ASSERT_EQ(desk->cards().size(), 2u);
    EXPECT_TRUE(standsAt(0, {1, 3}));
    EXPECT_TRUE(standsAt(1, {0, 0}));
    EXPECT_EQ(gtk_widget_get_width(GTK_WIDGET(window(0))), 364);
    EXPECT_EQ(gtk_widget_get_width(GTK_WIDGET(window(1))), 170);
}

TEST_F(DeskOnScreen, AWantedScaleIsKeptWhereTheScreensBecomeOthers) {
    remember({{"a", {0, 0}}});
    scale = 2;
    open();
    const auto takes = [&](int units) {
        return screen::waitFor(
            [&] { return gtk_widget_get_width(GTK_WIDGET(window(0))) == units; });
    };
    EXPECT_TRUE(takes(340));
    gdk_x11_display_set_surface_scale(gdk_display_get_default(), 2);
    EXPECT_TRUE(takes(170));
    gdk_x11_display_set_surface_scale(gdk_display_get_default(), 1);
    EXPECT_TRUE(takes(340));
}

TEST_F(DeskOnScreen, AnOpenGalleryTakesTheScaleOfTheScreens) {
    remember({{"a", {0, 0}}});
    scale = 2;
    open();
    desk->openGallery();
    const auto takes = [&](int units) {
        return screen::waitFor([&] {
            const auto pictures =
                screen::under(GTK_WIDGET(desk->gallery()->window()), screen::isPicture);
            return !pictures.empty() && gtk_widget_get_width(pictures.front()) == units;
        });
    };
    EXPECT_TRUE(takes(340));
    gdk_x11_display_set_surface_scale(gdk_display_get_default(), 2);
    EXPECT_TRUE(takes(170));
    gdk_x11_display_set_surface_scale(gdk_display_get_default(), 1);
    EXPECT_TRUE(takes(340));
}

TEST_F(DeskOnScreen, AWidgetDraggedByItsBackgroundSnapsToTheGrid) {
    remember({{"a", {0, 0}}, {"c", {5, 3}}});
    open();
    ASSERT_TRUE(standsAt(0, {0, 0}));
    const views::Point at = grid.origin({0, 0});
    drag({at.x + 50, at.y + 50}, {at.x + 50 + 2 * 194 + 60, at.y + 50 + 194 - 70});
    EXPECT_TRUE(standsAt(0, {2, 1}));
    EXPECT_THAT(remembered(), testing::Contains(testing::Pair("a", testing::Pair(2, 1))));
}

TEST_F(DeskOnScreen, AWidgetFollowsThePointer) {
    remember({{"a", {0, 0}}});
    open();
    ASSERT_TRUE(standsAt(0, {0, 0}));
    const views::Point at = grid.origin({0, 0});
    screen::movePointer(at.x + 50, at.y + 50);
    screen::holdButton();
    for (int step = 0; step < 10; ++step) {
        screen::movePointer(at.x + 80 + 31 * step, at.y + 60 + 17 * step);
        EXPECT_TRUE(screen::waitFor([&] {
            return screen::cornerOf(window(0)) ==
                   views::Point{at.x + 30 + 31 * step, at.y + 10 + 17 * step};
        })) << step;
    }
    screen::releaseButton();
    EXPECT_TRUE(standsAt(0, {2, 1}));
}

TEST_F(DeskOnScreen, AWidgetIsHeldWhereItWasPressedThoughThePointerIsFarAhead) {
    remember({{"a", {0, 0}}});
    open();
    ASSERT_TRUE(standsAt(0, {0, 0}));
    const views::Point at = grid.origin({0, 0});
    screen::movePointer(at.x + 50, at.y + 50);
    screen::holdAndMove(at.x + 50 + 2 * 194, at.y + 50 + 194);
    screen::releaseButton();
    EXPECT_TRUE(standsAt(0, {2, 1}));
}

TEST_F(DeskOnScreen, AWidgetDroppedOnAnotherGoesToTheNearestFreePlace) {
    remember({{"a", {0, 0}}, {"b", {2, 0}}});
    open();
    ASSERT_TRUE(standsAt(1, {2, 0}));
    const views::Point at = grid.origin({0, 0});
    drag({at.x + 50, at.y + 50}, {at.x + 50 + 2 * 194 - 20, at.y + 50});
    EXPECT_TRUE(standsAt(0, {1, 0}));
    EXPECT_TRUE(standsAt(1, {2, 0}));
}

TEST_F(DeskOnScreen, AControlIsPressedAndDragsOnlyWithTheAltKey) {
    source.faces["a"].elements = {button("Press", {20, 20, 100, 60})};
    remember({{"a", {0, 0}}});
    open();
    ASSERT_TRUE(standsAt(0, {0, 0}));
    const views::Point at = grid.origin({0, 0});
    drag({at.x + 50, at.y + 50}, {at.x + 50 + 194, at.y + 50});
    EXPECT_TRUE(standsAt(0, {0, 0}));
    screen::click(at.x + 50, at.y + 50);
    EXPECT_TRUE(screen::waitFor([&] { return source.presses.size() == 1; }));
    screen::holdKey(GDK_KEY_Alt_L);
    drag({at.x + 50, at.y + 50}, {at.x + 50 + 194, at.y + 50});
    screen::releaseKey(GDK_KEY_Alt_L);
    EXPECT_TRUE(standsAt(0, {1, 0}));
    EXPECT_EQ(source.presses.size(), 1u);
}

TEST_F(DeskOnScreen, TheMenuMovesAWidget) {
    remember({{"a", {1, 1}}, {"c", {2, 1}}});
    open();
    activateAction(0, "card.right");
    EXPECT_TRUE(standsAt(0, {3, 1})) << "over the one in its way";
    activateAction(0, "card.down");
    EXPECT_TRUE(standsAt(0, {3, 2}));
    activateAction(0, "card.left");
    EXPECT_TRUE(standsAt(0, {2, 2}));
    activateAction(0, "card.up");
    EXPECT_TRUE(standsAt(0, {2, 0})) << "over it again";
    EXPECT_THAT(remembered(), testing::Contains(testing::Pair("a", testing::Pair(2, 0))));
}

TEST_F(DeskOnScreen, TheControlKeyAndAnArrowMoveAWidget) {
    remember({{"a", {1, 1}}});
    open();
    screen::activate(window(0));
    screen::pressKey(GDK_KEY_Right, GDK_KEY_Control_L);
    EXPECT_TRUE(standsAt(0, {2, 1}));
}

TEST_F(DeskOnScreen, AClickOfTheOtherButtonOpensTheMenu) {
    remember({{"a", {1, 1}}});
    open();
    ASSERT_TRUE(standsAt(0, {1, 1}));
    const views::Point at = grid.origin({1, 1});
    screen::click(at.x + 50, at.y + 50, 3);
    const auto isOpen = [&] {
        for (GtkWidget* child = gtk_widget_get_first_child(desk->cards()[0]->card().widget());
             child; child = gtk_widget_get_next_sibling(child))
            if (GTK_IS_POPOVER(child) && gtk_widget_get_mapped(child))
                return true;
        return false;
    };
    EXPECT_TRUE(screen::waitFor(isOpen));
    screen::pressKey(GDK_KEY_Escape);
    EXPECT_TRUE(screen::waitFor([&] { return !isOpen(); }));
    screen::activate(window(0));
    screen::pressKey(GDK_KEY_F10, GDK_KEY_Shift_L);
    EXPECT_TRUE(screen::waitFor(isOpen));
}

TEST_F(DeskOnScreen, AWidgetIsTakenAwayAndStaysAway) {
    remember({{"a", {0, 0}}, {"c", {2, 0}}});
    open();
    activateAction(0, "card.remove");
    EXPECT_TRUE(screen::waitFor([&] { return desk->cards().size() == 1; }));
    EXPECT_EQ(remembered().count("a"), 0u);
    EXPECT_FALSE(isEmpty);
    activateAction(0, "card.remove");
    EXPECT_TRUE(screen::waitFor([&] { return isEmpty; }));
    EXPECT_EQ(file().load(), Placement{});
    EXPECT_TRUE(source.looks.empty()) << "nobody looks at it any more";
}

TEST_F(DeskOnScreen, WithoutAnyWidgetTheGalleryOpens) {
    remember({});
    open();
    ASSERT_NE(desk->gallery(), nullptr);
    EXPECT_EQ(source.looks.size(), 4u) << "a preview of each";
    gtk_window_close(desk->gallery()->window());
    EXPECT_TRUE(screen::waitFor([&] { return isEmpty; }));
    EXPECT_TRUE(source.looks.empty());
}

TEST_F(DeskOnScreen, AllCanBePlacedAnew) {
    remember({{"d", {0, 3}}, {"a", {2, 2}}});
    open();
    activateAction(1, "card.place-anew");
    EXPECT_TRUE(standsAt(0, {4, 0}));
    EXPECT_TRUE(standsAt(1, {4, 1}));
}

TEST_F(DeskOnScreen, AKeyGoesFromCardToCard) {
    remember({{"a", {0, 0}}, {"c", {2, 0}}});
    open();
    screen::activate(window(0));
    screen::pressKey(GDK_KEY_F6);
    EXPECT_TRUE(screen::waitFor([&] { return gtk_window_is_active(window(1)); }));
    screen::pressKey(GDK_KEY_F6);
    EXPECT_TRUE(screen::waitFor([&] { return gtk_window_is_active(window(0)); }));
    screen::pressKey(GDK_KEY_F6, GDK_KEY_Shift_L);
    EXPECT_TRUE(screen::waitFor([&] { return gtk_window_is_active(window(1)); }));
}

TEST_F(DeskOnScreen, AMonitorThatIsMissingKeepsItsWidgets) {
    Placement placement{.widgets = {{"a", 1, {"gone", 5000, 0, 800, 600}, 2, 2}}};
    file().save(placement);
    open();
    EXPECT_TRUE(standsAt(0, {2, 2})) << "it waits on the primary one";
    desk.reset();
    EXPECT_EQ(file().load(), placement);
}

TEST_F(DeskOnScreen, StartsAnewWhenThePlacementMakesNoSense) {
    folder.write("placement.json", "{\"widgets\":");
    open();
    EXPECT_EQ(desk->cards().size(), 4u);
    EXPECT_TRUE(std::filesystem::exists(folder.path() / "placement.json.bad"));
    EXPECT_EQ(reports.size(), 1u);
    EXPECT_EQ(remembered().size(), 4u);
}

TEST_F(DeskOnScreen, CardsAreWhatAScaleOfTheCommandLineSays) {
    remember({{"a", {1, 0}}});
    screen::movePointer(1279, 799);
    desk.emplace(
        Desk::Surroundings{.display = gdk_display_get_default(), .scale = 1.5, .onEmpty = [] {}},
        source, mount, file());
    desk->open();
    screen::settle();
    EXPECT_EQ(gtk_widget_get_width(GTK_WIDGET(window(0))), 255);
    ASSERT_EQ(source.looks.size(), 1u);
    EXPECT_EQ(source.looks[0]->scale, 1.5);
    const Grid larger({0, 0, 1280 / 1.5, 800 / 1.5});
    const views::Point corner = larger.origin({1, 0});
    EXPECT_TRUE(screen::waitFor([&] {
        return screen::cornerOf(window(0)) ==
               views::Point{std::round(corner.x * 1.5), std::round(corner.y * 1.5)};
    }));
}

}  // namespace
}  // namespace desktop

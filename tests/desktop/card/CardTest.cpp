#include "desktop/PaintedWidgets.hpp"
#include "desktop/TestScreen.hpp"
#include "desktop/card/Card.hpp"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace desktop {
namespace {

/// A card in a window of its own.
struct CardOnScreen : testing::Test {
    CardOnScreen() {
        gtk_window_set_decorated(window, FALSE);
        gtk_window_set_resizable(window, FALSE);
        gtk_window_set_child(window, card.widget());
        gtk_window_present(window);
        EXPECT_TRUE(screen::waitFor([&] { return gtk_widget_get_mapped(card.widget()) != 0; }));
        screen::activate(window);
    }
    ~CardOnScreen() override { gtk_window_destroy(window); }

    void show(std::vector<remote::Element> shown, std::uint32_t blue = 0x80) {
        const remote::Face face{.elements = std::move(shown)};
        const Painting painting(card.size(), 1, blue);
        card.show({.face = &face, .scale = 1, .pixels = painting.pixels()});
        screen::settle();
    }
    /// The children that stand for elements.
    std::vector<GtkWidget*> children() const {
        std::vector<GtkWidget*> all;
        for (GtkWidget* child = gtk_widget_get_first_child(card.widget()); child;
             child = gtk_widget_get_next_sibling(child))
            all.push_back(child);
        return all;
    }
    /// The label of the child with the keyboard's focus.
    std::string focused() const {
        for (std::size_t i = 0; i < elements.size(); ++i)
            if (gtk_widget_is_focus(children()[i]))
                return elements[i].label;
        return gtk_widget_is_focus(card.widget()) ? "the card" : "nothing";
    }
    bool isSeen(int x, int y, std::uint32_t color) const {
        const views::Point corner = screen::cornerOf(window);
        return screen::waitFor([&] {
            return screen::pixel(static_cast<int>(corner.x) + x, static_cast<int>(corner.y) + y) ==
                   color;
        });
    }

    GtkWindow* window = GTK_WINDOW(gtk_window_new());
    std::vector<std::string> presses;
    Card card{"Volume", {170, 170}, [this](const intents::ArchivedAction& action) {
                  presses.push_back(action.identifier);
              }};
    const std::vector<remote::Element> elements{
        text("Volume", {12, 12, 80, 14}),     button("Minus", {20.4, 40, 22.3, 22}),
        button("Plus", {42.7, 40, 22.3, 22}), button("Off", {100, 40, 30, 22}, false),
        button("Mute", {20, 100, 100, 30}),
    };
};

TEST_F(CardOnScreen, IsExactlyItsPicture) {
    show(elements);
    for (int y = 40; y < 130; y += 3)
        for (int x = 0; x < 170; x += 7)
            ASSERT_TRUE(isSeen(x, y, static_cast<std::uint32_t>(x << 16 | y << 8 | 0x80)))
                << x << " " << y;
    show(elements, 0x33);
    EXPECT_TRUE(isSeen(85, 85, 0x555533));
    EXPECT_EQ(gtk_widget_get_width(GTK_WIDGET(window)), 170);
    EXPECT_EQ(gtk_widget_get_height(GTK_WIDGET(window)), 170);
}

/// The colours of a card as it draws itself, over nothing.
std::uint32_t drawnPixel(Card& card, int x, int y) {
    GtkSnapshot* snapshot = gtk_snapshot_new();
    card.snapshot(snapshot);
    GskRenderNode* node = gtk_snapshot_free_to_node(snapshot);
    cairo_surface_t* surface = cairo_image_surface_create(CAIRO_FORMAT_ARGB32, 170, 170);
    cairo_t* context = cairo_create(surface);
    gsk_render_node_draw(node, context);
    cairo_surface_flush(surface);
    const auto* row = reinterpret_cast<const std::uint32_t*>(
        cairo_image_surface_get_data(surface) + y * cairo_image_surface_get_stride(surface));
    const std::uint32_t value = row[x];
    cairo_destroy(context);
    cairo_surface_destroy(surface);
    gsk_render_node_unref(node);
    return value;
}

TEST_F(CardOnScreen, IsTransparentInTheCorners) {
    show(elements);
    for (const int x : {0, 169})
        for (const int y : {0, 169})
            EXPECT_EQ(drawnPixel(card, x, y), 0u);
    EXPECT_EQ(drawnPixel(card, 85, 0), 0xFF550080);
    EXPECT_EQ(drawnPixel(card, 0, 85), 0xFF005580);
}

TEST_F(CardOnScreen, TellsScreenReadersOfEveryElement) {
    show(elements);
    const auto shown = children();
    ASSERT_EQ(shown.size(), elements.size());
    for (std::size_t i = 0; i < shown.size(); ++i) {
        auto* accessible = GTK_ACCESSIBLE(shown[i]);
        const bool isButton = elements[i].role == views::AccessibilityRole::button;
        EXPECT_TRUE(gtk_test_accessible_has_role(
            accessible, isButton ? GTK_ACCESSIBLE_ROLE_BUTTON : GTK_ACCESSIBLE_ROLE_LABEL));
        EXPECT_TRUE(screen::isCalled(shown[i], elements[i].label)) << elements[i].label;
        char* state = gtk_test_accessible_check_state(accessible, GTK_ACCESSIBLE_STATE_DISABLED,
                                                      elements[i].enabled ? FALSE : TRUE);
        EXPECT_EQ(state, nullptr) << elements[i].label << ": " << state;
    }
    EXPECT_TRUE(
        gtk_test_accessible_has_role(GTK_ACCESSIBLE(card.widget()), GTK_ACCESSIBLE_ROLE_GROUP));
}

TEST_F(CardOnScreen, EveryElementLiesWhereItIsSeen) {
    show(elements);
    const auto shown = children();
    for (std::size_t i = 0; i < shown.size(); ++i) {
        graphene_rect_t bounds;
        ASSERT_TRUE(gtk_widget_compute_bounds(shown[i], card.widget(), &bounds));
        EXPECT_NEAR(bounds.origin.x, elements[i].frame.x, 0.001);
        EXPECT_NEAR(bounds.origin.y, elements[i].frame.y, 0.001);
        EXPECT_NEAR(bounds.size.width, elements[i].frame.width, 1);
        EXPECT_NEAR(bounds.size.height, elements[i].frame.height, 1);
    }
}

TEST_F(CardOnScreen, APressOfThePointerRunsTheActionUnderIt) {
    show(elements);
    const views::Point corner = screen::cornerOf(window);
    const auto click = [&](double x, double y) { screen::click(corner.x + x, corner.y + y); };
    click(41, 50);
    EXPECT_EQ(presses, std::vector<std::string>{"press Minus"});
    click(43, 50);
    EXPECT_EQ(presses.back(), "press Plus") << "neighbours share an edge";
    click(119, 129);
    EXPECT_EQ(presses.back(), "press Mute");
    presses.clear();
    click(110, 50);
    click(20, 16);
    click(120.5, 131);
    click(85, 80);
    EXPECT_THAT(presses, testing::IsEmpty()) << "disabled, text, beside, background";
}

TEST_F(CardOnScreen, APressThatIsLetGoElsewhereIsNone) {
    show(elements);
    const views::Point corner = screen::cornerOf(window);
    screen::movePointer(corner.x + 60, corner.y + 110);
    screen::holdButton();
    screen::movePointer(corner.x + 60, corner.y + 160);
    screen::releaseButton();
    EXPECT_TRUE(presses.empty());
}

TEST_F(CardOnScreen, TabAndArrowsGoFromButtonToButton) {
    show(elements);
    gtk_widget_grab_focus(card.widget());
    std::vector<std::string> forward;
    for (int i = 0; i < 5; ++i) {
        screen::pressKey(GDK_KEY_Tab);
        forward.push_back(focused());
    }
    EXPECT_EQ(forward, (std::vector<std::string>{"Minus", "Plus", "Mute", "the card", "Minus"}));
    screen::pressKey(GDK_KEY_Right);
    EXPECT_EQ(focused(), "Plus");
    screen::pressKey(GDK_KEY_Down);
    EXPECT_EQ(focused(), "Mute");
    screen::pressKey(GDK_KEY_Up);
    EXPECT_EQ(focused(), "Plus");
    screen::pressKey(GDK_KEY_Tab, GDK_KEY_Shift_L);
    screen::pressKey(GDK_KEY_Tab, GDK_KEY_Shift_L);
    EXPECT_EQ(focused(), "the card");
}

TEST_F(CardOnScreen, EnterAndSpacePressAtOnce) {
    show(elements);
    gtk_widget_grab_focus(children()[2]);
    for (const int key : {GDK_KEY_Return, GDK_KEY_space, GDK_KEY_KP_Enter}) {
        presses.clear();
        screen::pressKey(static_cast<unsigned>(key));
        EXPECT_EQ(presses, std::vector<std::string>{"press Plus"}) << key;
    }
}

TEST_F(CardOnScreen, ARingShowsWhereTheKeyboardIs) {
    show(elements);
    gtk_widget_add_css_class(GTK_WIDGET(gtk_widget_get_root(card.widget())), "nurva-by-keys");
    gtk_widget_grab_focus(card.widget());
    for (int i = 0; i < 3; ++i)
        screen::pressKey(GDK_KEY_Tab);
    ASSERT_EQ(focused(), "Mute");
    EXPECT_TRUE(isSeen(70, 99, 0xFFFFFF));
    EXPECT_TRUE(isSeen(4, 85, 4 << 16 | 85 << 8 | 0x80)) << "and not around the card";
    screen::pressKey(GDK_KEY_Tab);
    EXPECT_TRUE(isSeen(70, 99, 70 << 16 | 99 << 8 | 0x80)) << "and goes with it";
    EXPECT_TRUE(isSeen(4, 85, 0xFFFFFF)) << "around the card";
}

TEST_F(CardOnScreen, ChangesInPlace) {
    show(elements);
    const auto before = children();
    gtk_widget_grab_focus(before[4]);
    auto next = elements;
    next[4].label = "Unmute";
    next[4].action->identifier = "press Unmute";
    show(next, 0x11);
    EXPECT_EQ(children(), before);
    EXPECT_TRUE(gtk_widget_is_focus(before[4]));
    screen::pressKey(GDK_KEY_Return);
    EXPECT_EQ(presses, std::vector<std::string>{"press Unmute"});
}

TEST_F(CardOnScreen, TheFocusFollowsItsButtonWhenAnotherComesBefore) {
    show(elements);
    gtk_widget_grab_focus(children()[4]);
    auto next = elements;
    next.insert(next.begin() + 1, button("New", {120, 100, 20, 20}));
    show(next);
    ASSERT_EQ(children().size(), 6u);
    EXPECT_TRUE(gtk_widget_is_focus(children()[5]));
    show({elements[0]});
    EXPECT_TRUE(gtk_widget_is_focus(card.widget())) << "without buttons the card has it";
}

TEST_F(CardOnScreen, ElementsOfOtherKindsStandInTheirOrder) {
    show(elements);
    auto next = elements;
    std::swap(next[0], next[1]);
    show(next);
    const auto shown = children();
    for (std::size_t i = 0; i < next.size(); ++i)
        EXPECT_TRUE(screen::isCalled(shown[i], next[i].label)) << i;
}

TEST_F(CardOnScreen, APressThatChangesTheFaceDoesNoHarm) {
    std::vector<remote::Element> fewer{elements[0]};
    Card changing("Changing", {170, 170}, [&](const intents::ArchivedAction&) {
        const remote::Face face{.elements = fewer};
        const Painting painting({170, 170}, 1);
        changing.show({.face = &face, .scale = 1, .pixels = painting.pixels()});
    });
    gtk_window_set_child(window, changing.widget());
    const remote::Face face{.elements = elements};
    const Painting painting({170, 170}, 1);
    changing.show({.face = &face, .scale = 1, .pixels = painting.pixels()});
    screen::settle();
    const views::Point corner = screen::cornerOf(window);
    screen::click(corner.x + 60, corner.y + 110);
    EXPECT_EQ(gtk_widget_get_first_child(changing.widget()),
              gtk_widget_get_last_child(changing.widget()));
    gtk_window_set_child(window, nullptr);
}

TEST_F(CardOnScreen, SaysThatItsWidgetHasStopped) {
    show(elements);
    card.show({.face = nullptr, .scale = 1, .pixels = {}});
    screen::settle();
    EXPECT_TRUE(isSeen(85, 20, 0x16191B));
    const auto labels = children();
    ASSERT_EQ(labels.size(), 1u) << "nothing can be pressed";
    EXPECT_NE(gtk_widget_get_first_child(labels[0]), nullptr);
    show(elements);
    EXPECT_EQ(children().size(), elements.size()) << "and comes back";
    EXPECT_TRUE(isSeen(85, 85, 0x555580));
}

TEST_F(CardOnScreen, IsAsLargeAsItsPointsInEveryScale) {
    for (const double units : {1.0, 1.25, 1.5, 2.0}) {
        card.setUnitsPerPoint(units);
        const remote::Face face{.elements = elements};
        const Painting painting(card.size(), units);
        card.show({.face = &face, .scale = units, .pixels = painting.pixels()});
        const int side = static_cast<int>(std::ceil(170 * units));
        EXPECT_TRUE(screen::waitFor([&] { return gtk_widget_get_width(card.widget()) == side; }));
        screen::settle();
        const int x = static_cast<int>(30 * units);
        const int y = static_cast<int>(85 * units);
        EXPECT_TRUE(isSeen(x, y, static_cast<std::uint32_t>(x << 16 | y << 8 | 0x80))) << units;
        presses.clear();
        const views::Point corner = screen::cornerOf(window);
        screen::click(corner.x + 60 * units, corner.y + 110 * units);
        EXPECT_EQ(presses, std::vector<std::string>{"press Mute"}) << units;
    }
}

TEST_F(CardOnScreen, AMerePictureIsOneImageForScreenReaders) {
    Card picture("How it looks", {170, 170});
    const remote::Face face{.elements = elements};
    const Painting painting({170, 170}, 1);
    picture.show({.face = &face, .scale = 1, .pixels = painting.pixels()});
    EXPECT_EQ(gtk_widget_get_first_child(picture.widget()), nullptr);
    EXPECT_TRUE(
        gtk_test_accessible_has_role(GTK_ACCESSIBLE(picture.widget()), GTK_ACCESSIBLE_ROLE_IMG));
    EXPECT_FALSE(gtk_widget_get_focusable(picture.widget()));
}

}  // namespace
}  // namespace desktop

#include "desktop/PaintedWidgets.hpp"
#include "desktop/TestScreen.hpp"
#include "desktop/gallery/Gallery.hpp"

#include <gmock/gmock.h>

#include <functional>
#include <string>
#include <vector>

namespace desktop {
namespace {

struct GalleryOnScreen : testing::Test {
    GalleryOnScreen() {
        gallery.present();
        screen::activate(gallery.window());
        gallery.showPlaced({"Alfa", "Beta"});
        screen::settle();
    }

    std::vector<GtkWidget*> inside(const std::function<bool(GtkWidget*)>& condition) {
        return screen::under(GTK_WIDGET(gallery.window()), condition);
    }
    std::vector<GtkWidget*> labelled(const std::string& label) {
        return inside([&](GtkWidget* widget) {
            return GTK_IS_BUTTON(widget) && screen::isCalled(widget, label);
        });
    }
    std::vector<GtkWidget*> pictures() { return inside(screen::isPicture); }

    PaintedWidgets source;
    std::vector<std::string> requests;
    Gallery gallery{
        source,
        1,
        true,
        {.add = [this](const std::string& kind) { requests.push_back("add " + kind); },
         .remove =
             [this](std::size_t index) { requests.push_back("remove " + std::to_string(index)); },
         .placeAnew = [this] { requests.emplace_back("place anew"); },
         .focusCard = [this](int step) { requests.push_back("card " + std::to_string(step)); },
         .close = [this] { requests.emplace_back("close"); }}};
};

TEST_F(GalleryOnScreen, OffersEveryWidgetWithAPicture) {
    EXPECT_EQ(source.looks.size(), 4u);
    EXPECT_EQ(pictures().size(), 4u);
    for (const auto& widget : source.shelf)
        EXPECT_EQ(labelled("Añadir " + widget.displayName).size(), 1u) << widget.displayName;
}

TEST_F(GalleryOnScreen, AButtonAddsItsWidget) {
    g_signal_emit_by_name(labelled("Añadir Gama").at(0), "clicked");
    EXPECT_THAT(requests, testing::ElementsAre("add c"));
}

TEST_F(GalleryOnScreen, TheKeyboardAddsAWidget) {
    gtk_widget_grab_focus(labelled("Añadir Beta").at(0));
    screen::pressKey(GDK_KEY_Return);
    EXPECT_TRUE(screen::waitFor([&] { return !requests.empty(); }));
    EXPECT_THAT(requests, testing::ElementsAre("add b"));
}

TEST_F(GalleryOnScreen, AClickOnThePictureAddsIt) {
    GtkWidget* picture = pictures().at(0);
    double x = 0;
    double y = 0;
    gtk_widget_translate_coordinates(picture, GTK_WIDGET(gallery.window()), 85, 85, &x, &y);
    const views::Point corner = screen::cornerOf(gallery.window());
    double insideX = 0;
    double insideY = 0;
    gtk_native_get_surface_transform(GTK_NATIVE(gallery.window()), &insideX, &insideY);
    screen::click(corner.x + x + insideX, corner.y + y + insideY);
    EXPECT_TRUE(screen::waitFor([&] { return !requests.empty(); }));
    EXPECT_THAT(requests, testing::ElementsAre("add a"));
}

TEST_F(GalleryOnScreen, ListsWhatStandsOnTheDesktop) {
    g_signal_emit_by_name(labelled("Quitar Beta").at(0), "clicked");
    g_signal_emit_by_name(labelled("Recolocar todos").at(0), "clicked");
    EXPECT_THAT(requests, testing::ElementsAre("remove 1", "place anew"));
    gallery.showPlaced({});
    EXPECT_TRUE(labelled("Quitar Beta").empty());
    EXPECT_TRUE(labelled("Recolocar todos").empty());
}

TEST_F(GalleryOnScreen, SaysSomethingUntilTheListIsAnotherOne) {
    const auto isSaid = [&] {
        return inside([](GtkWidget* widget) {
                   return GTK_IS_LABEL(widget) && gtk_widget_get_mapped(widget) &&
                          gtk_label_get_text(GTK_LABEL(widget)) == std::string("No cabe");
               }).size() == 1;
    };
    EXPECT_FALSE(isSaid());
    gallery.say("No cabe");
    EXPECT_TRUE(screen::waitFor(isSaid));
    gallery.showPlaced({"Alfa"});
    EXPECT_TRUE(screen::waitFor([&] { return !isSaid(); }));
}

TEST_F(GalleryOnScreen, TheFocusStaysInTheListAsItShrinks) {
    gtk_widget_grab_focus(labelled("Quitar Beta").at(0));
    gallery.showPlaced({"Alfa"});
    EXPECT_TRUE(gtk_widget_is_focus(labelled("Quitar Alfa").at(0)));
}

TEST_F(GalleryOnScreen, ShowsTheWidgetsThatComeLater) {
    source.shelf.erase(source.shelf.begin() + 1, source.shelf.end());
    gallery.showWidgets();
    screen::settle();
    EXPECT_EQ(pictures().size(), 1u);
    EXPECT_EQ(source.looks.size(), 1u);
    source.shelf.clear();
    gallery.showWidgets();
    screen::settle();
    EXPECT_TRUE(pictures().empty());
}

TEST_F(GalleryOnScreen, DrawsItsPicturesAnewAtAnotherScale) {
    gallery.setUnitsPerPoint(2);
    screen::settle();
    EXPECT_EQ(pictures().size(), 4u);
    EXPECT_EQ(gtk_widget_get_width(pictures().at(0)), 340);
    ASSERT_EQ(source.looks.size(), 4u);
    EXPECT_EQ(source.looks[0]->scale, 2);
}

TEST_F(GalleryOnScreen, KeysLeaveIt) {
    screen::pressKey(GDK_KEY_F6);
    screen::pressKey(GDK_KEY_F6, GDK_KEY_Shift_L);
    screen::pressKey(GDK_KEY_Escape);
    EXPECT_TRUE(screen::waitFor([&] { return requests.size() == 3; }));
    EXPECT_THAT(requests, testing::ElementsAre("card 1", "card -1", "close"));
}

}  // namespace
}  // namespace desktop

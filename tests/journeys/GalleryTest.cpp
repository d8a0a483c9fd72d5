#include "journeys/ScreenReader.hpp"
#include "journeys/UserSession.hpp"
#include "journeys/Waiting.hpp"
#include "journeys/WidgetHost.hpp"
#include "journeys/Widgets.hpp"
#include "support/Program.hpp"

#include <gmock/gmock.h>

namespace journeys {
namespace {

using testing::Contains;
using testing::IsSupersetOf;

/// Somebody who arranges widgets in the gallery's window, once they have all come.
struct GalleryJourney : testing::Test {
    GalleryJourney() {
        session.startHostApplication("sin-medir");
        host.emplace();
        for (const Widget& widget : widgets)
            EXPECT_TRUE(comes(widget));
        EXPECT_EQ(support::run(NURVA_DESKTOP " --gallery").status, 0);
        EXPECT_TRUE(soon([&] { return session.screen.activeWindow() == gallery; }));
        reader.emplace();
        EXPECT_TRUE(reader->await(gallery, "Quitar Volumen por app"));
    }

    bool comes(const Widget& widget) {
        return soon([&] { return session.screen.window(widget.name).has_value(); });
    }
    bool goes(const Widget& widget) {
        return soon([&] { return !session.screen.window(widget.name); });
    }
    bool press(const std::string& name) {
        const auto control = reader->await(gallery, name);
        return control && reader->press(*control);
    }
    std::vector<Area> places() const {
        std::vector<Area> all;
        for (const Widget& widget : widgets)
            all.push_back(session.screen.window(widget.name).value_or(Area()));
        return all;
    }

    const std::string gallery = "Widgets de Nurva";
    UserSession session;
    std::optional<WidgetHost> host;
    std::optional<ScreenReader> reader;
};

TEST_F(GalleryJourney, ListsTheWidgetsInOrderWithNameAndDescription) {
    std::vector<std::string> texts;
    for (const Heard& heard : reader->window(gallery))
        if (heard.role == "label" && heard.name != "Añadir" && texts.size() < 2 * widgets.size())
            texts.push_back(heard.name);
    std::vector<std::string> wanted;
    for (const Widget& widget : widgets)
        wanted.insert(wanted.end(), {widget.name, widget.description});
    EXPECT_EQ(texts, wanted);
    EXPECT_TRUE(session.screen.window(gallery));
}

TEST_F(GalleryJourney, TakesAwayAndAddsByName) {
    ASSERT_TRUE(press("Quitar Tu cuarto"));
    EXPECT_TRUE(goes(room));
    EXPECT_TRUE(soon([&] { return session.placement()->widgets.size() == 3; }));
    EXPECT_TRUE(soon([&] { return !reader->find(gallery, "Quitar Tu cuarto"); }));
    ASSERT_TRUE(press("Añadir Tu cuarto"));
    EXPECT_TRUE(comes(room));
    EXPECT_TRUE(soon([&] { return session.placement()->widgets.size() == 4; }));
    EXPECT_EQ(session.placement()->widgets.back().kind, room.kind);
}

TEST_F(GalleryJourney, FindsEverythingInItsPlaceAfterARestart) {
    ASSERT_TRUE(press("Quitar Poner un perfil"));
    ASSERT_TRUE(goes(profiles));
    const auto before = places();
    ASSERT_EQ(host->quit(), 0);
    const auto remembered = session.placement();
    host.emplace();
    EXPECT_TRUE(soon([&] { return places() == before; }));
    EXPECT_EQ(session.placement(), remembered);
}

TEST_F(GalleryJourney, PutsEverythingBackInOrder) {
    const auto tidy = session.placement();
    const auto places = this->places();
    const auto card = *session.screen.window(room.name);
    session.screen.click(card.x + card.width / 2, card.y + 10);
    ASSERT_TRUE(soon([&] { return session.screen.activeWindow() == room.name; }));
    session.screen.press({"Control_L", "Left"});
    ASSERT_TRUE(soon([&] { return session.placement() != tidy; }));
    ASSERT_TRUE(soon([&] { return session.screen.window(room.name) != card; }));
    ASSERT_TRUE(press("Recolocar todos"));
    EXPECT_TRUE(soon([&] { return session.placement() == tidy; }));
    EXPECT_TRUE(soon([&] { return this->places() == places; }));
}

TEST_F(GalleryJourney, EndsTheProgramWhenNothingIsLeftToBeSeen) {
    for (const Widget& widget : widgets) {
        ASSERT_TRUE(press("Quitar " + widget.name));
        ASSERT_TRUE(goes(widget));
    }
    session.screen.press({"Escape"});
    EXPECT_EQ(host->ended(), 0);
    // What has been taken away stays away: the gallery is all there is to see.
    host.emplace();
    EXPECT_TRUE(soon([&] { return session.screen.window(gallery).has_value(); }));
    EXPECT_TRUE(session.placement()->widgets.empty());
}

}  // namespace
}  // namespace journeys

#include "journeys/ScreenReader.hpp"
#include "journeys/UserSession.hpp"
#include "journeys/Waiting.hpp"
#include "journeys/WidgetHost.hpp"
#include "journeys/Widgets.hpp"
#include "support/Program.hpp"

#include <gtest/gtest.h>

namespace journeys {
namespace {

/// Somebody who has only a keyboard, at the profiles' card.
struct Keyboard : testing::Test {
    Keyboard() {
        session.startHostApplication("sin-medir");
        host.emplace();
        reader.emplace();
        EXPECT_TRUE(soon([&] { return control("Cine").has_value(); }));
        // From the gallery the keys lead to the cards, one after the other.
        EXPECT_EQ(support::run(NURVA_DESKTOP " --gallery").status, 0);
        EXPECT_TRUE(keyboardComesTo(gallery));
        session.screen.press({"F6"});
        EXPECT_TRUE(keyboardComesTo(whatIsOn.name));
        session.screen.press({"F6"});
        EXPECT_TRUE(keyboardComesTo(profiles.name));
    }

    std::optional<Heard> control(const std::string& name) {
        return reader->find(profiles.name, name, "PONER UN PERFIL");
    }
    bool keyboardComesTo(const std::string& window) {
        return soon([&] {
            const auto heard = reader->find(window, window);
            return heard && heard->isActive;
        });
    }
    bool focusComesTo(const std::string& name) {
        return soon([&] {
            const auto heard = control(name);
            return heard && heard->isFocused;
        });
    }

    const std::string gallery = "Widgets de Nurva";
    UserSession session;
    std::optional<WidgetHost> host;
    std::optional<ScreenReader> reader;
};

TEST_F(Keyboard, ReachesAndPressesControls) {
    session.screen.press({"Tab"});
    ASSERT_TRUE(focusComesTo("Música"));
    session.screen.press({"Right"});
    ASSERT_TRUE(focusComesTo("Voz clara"));
    session.screen.press({"Tab"});
    ASSERT_TRUE(focusComesTo("Cine"));
    session.screen.press({"Return"});
    EXPECT_TRUE(soon([&] { return session.container.state().perfil == "Cine"; }));
    session.screen.press({"Shift_L", "Tab"});
    ASSERT_TRUE(focusComesTo("Voz clara"));
    session.screen.press({"Down"});
    ASSERT_TRUE(focusComesTo("Ecualizador encendido"));
    session.screen.press({"space"});
    EXPECT_TRUE(soon([&] { return !session.container.state().prendido; }));
    EXPECT_TRUE(focusComesTo("Ecualizador apagado"));
}

TEST_F(Keyboard, SeesTheRingAroundTheFocusedControlAndNowhereElse) {
    session.screen.press({"Tab"});
    session.screen.press({"Tab"});
    ASSERT_TRUE(focusComesTo("Voz clara"));
    const Picture plain = drawnByCommandLine(profiles);
    const Area place = control("Voz clara")->place;
    const auto isNear = [&](int x, int y) {
        constexpr int reach = 6;
        return x >= place.x - reach && x < place.x + place.width + reach && y >= place.y - reach &&
               y < place.y + place.height + reach;
    };
    int near = 0;
    int elsewhere = 0;
    const auto look = [&] {
        const Picture seen = session.screen.pictureOf(profiles.name);
        near = elsewhere = 0;
        for (int y = 0; y < plain.size.height; ++y)
            for (int x = 0; x < plain.size.width; ++x)
                if (plain.at(x, y) >> 24 == 0xFF && plain.at(x, y) != seen.at(x, y))
                    ++(isNear(x, y) ? near : elsewhere);
    };
    // At the least, a line of a pixel all around.
    const int ring = 2 * (place.width + place.height);
    EXPECT_TRUE(soon([&] {
        look();
        return near >= ring && elsewhere == 0;
    })) << near
        << " near, " << elsewhere << " elsewhere";
    session.screen.press({"Tab"});
    session.screen.press({"Tab"});
    ASSERT_TRUE(focusComesTo("Noche"));
    EXPECT_TRUE(soon([&] {
        look();
        return near == 0 && elsewhere >= ring;
    })) << near
        << " near, " << elsewhere << " elsewhere";
}

}  // namespace
}  // namespace journeys

#include "journeys/UserSession.hpp"
#include "journeys/Waiting.hpp"
#include "journeys/WidgetHost.hpp"
#include "journeys/Widgets.hpp"

#include <gmock/gmock.h>

namespace journeys {
namespace {

TEST(Surroundings, CardsFollowTheResolutionOfTheDesktop) {
    UserSession session({1280, 1280});
    session.container.publish(scene("musica"));
    const WidgetHost host;
    for (int turn = 0; turn < times(10, 500); ++turn) {
        const int quarters = 4 + 2 * (turn % 3);
        session.screen.setResolution(96 * quarters / 4);
        const Widget& widget = widgets[static_cast<std::size_t>(turn) % widgets.size()];
        ASSERT_TRUE(isSeenAsDrawn(widget, session.screen, quarters / 4.0)) << turn;
    }
}

// Waits for a program that goes on without the bus.
TEST(Surroundings, WidgetsOutliveTheBusAndFindItAgain) {
    UserSession session;
    session.startHostApplication("sin-medir");
    WidgetHost host;
    ASSERT_TRUE(isSeenAsDrawn(volume, session.screen));
    session.bus.end();
    auto estado = session.container.state();
    estado.apps[1].nivel = 0.2;
    session.container.publish(estado);
    ASSERT_TRUE(isSeenAsDrawn(volume, session.screen));
    session.bus.start();
    session.startHostApplication("sin-medir");
    ASSERT_TRUE(soon([&] { return session.container.state().apps[1].nivel != 0.2; }));
    ASSERT_TRUE(isSeenAsDrawn(volume, session.screen));
    const auto card = session.screen.window(volume.name);
    ASSERT_TRUE(card);
    EXPECT_TRUE(soon([&] {
        // At the right end of the second bar.
        session.screen.click(card->x + 240, card->y + 85);
        return session.container.state().apps[1].nivel == 1;
    }));
    EXPECT_TRUE(isSeenAsDrawn(volume, session.screen));
    EXPECT_EQ(host.quit(), 0);
}

TEST(Surroundings, TheProgramSaysThatItsScreenIsGone) {
    UserSession session;
    session.container.publish(scene("musica"));
    WidgetHost host;
    ASSERT_TRUE(isSeenAsDrawn(room, session.screen));
    const pid_t extension = host.extension();
    session.screen.end();
    EXPECT_EQ(host.line(), "nurva-desktop: se ha perdido la pantalla");
    EXPECT_EQ(host.ended(), 1);
    EXPECT_TRUE(soon([&] { return !isRunning(extension); }));
}

}  // namespace
}  // namespace journeys

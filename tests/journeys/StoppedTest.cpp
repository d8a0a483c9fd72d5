#include "journeys/ScreenReader.hpp"
#include "journeys/UserSession.hpp"
#include "journeys/Waiting.hpp"
#include "journeys/WidgetHost.hpp"
#include "journeys/Widgets.hpp"

#include <gtest/gtest.h>

#include <chrono>
#include <iterator>
#include <set>

namespace journeys {
namespace {

using namespace std::chrono_literals;

/// A snapshot that the volume's widget cannot show: a level that is no number of per cent.
nurva::EstadoParaWidgets unbearable() {
    auto estado = scene("musica");
    estado.apps.front().nivel = 1e300;
    return estado;
}

struct Stopped : testing::Test {
    Stopped() {
        session.container.publish(scene("musica"));
        host.emplace();
        reader.emplace();
        EXPECT_TRUE(isSeenAsDrawn(volume, session.screen));
    }
    bool hasStopped() { return reader->await(volume.name, "Este widget se ha parado").has_value(); }

    UserSession session;
    std::optional<WidgetHost> host;
    std::optional<ScreenReader> reader;
};

TEST_F(Stopped, OneCardSaysSoWhileTheOthersLiveOn) {
    session.container.publish(unbearable());
    ASSERT_TRUE(hasStopped());
    auto later = unbearable();
    later.perfil = "Cine";
    session.container.publish(later);
    EXPECT_TRUE(isSeenAsDrawn(whatIsOn, session.screen));
    EXPECT_TRUE(isSeenAsDrawn(profiles, session.screen));
    EXPECT_TRUE(hasStopped());
}

TEST_F(Stopped, ACardIsWellAgainWithAGoodSnapshot) {
    session.container.publish(scene("musica"));
    const Picture good = drawnByCommandLine(volume);
    session.container.publish(unbearable());
    ASSERT_TRUE(hasStopped());
    session.container.publish(scene("musica"));
    EXPECT_TRUE(
        soon([&] { return isSeen(good, session.screen.pictureOf(volume.name)); }, promised(1s)));
}

TEST_F(Stopped, TheExtensionIsNotStartedOverAndOver) {
    const auto start = std::chrono::steady_clock::now();
    std::set<pid_t> started;
    int turn = 0;
    EXPECT_TRUE(soon([&] {
        if (turn++ % 20 == 0)
            session.container.publish(unbearable());
        if (const pid_t extension = host->extension(); extension != 0)
            started.insert(extension);
        return started.size() >= 2 && turn >= 500;
    }));
    const auto time = std::chrono::steady_clock::now() - start;
    // Five times in ten seconds after the first; and for a snapshot that stood, since a busy
    // machine published no other.
    EXPECT_LE(std::ssize(started), 5 * (time / 10s + 1) + 1 + time / 500ms);
    EXPECT_TRUE(hasStopped());
    session.container.publish(scene("musica"));
    EXPECT_TRUE(isSeenAsDrawn(whatIsOn, session.screen));
}

}  // namespace
}  // namespace journeys

#include "journeys/ScreenReader.hpp"
#include "journeys/UserSession.hpp"
#include "journeys/Waiting.hpp"
#include "journeys/WidgetHost.hpp"
#include "journeys/Widgets.hpp"

#include <gtest/gtest.h>

#include <atomic>
#include <cmath>
#include <csignal>
#include <optional>
#include <random>
#include <thread>

namespace journeys {
namespace {

using namespace std::chrono_literals;

/// The same ones in every run.
std::mt19937 chance;

void letPassUpTo(std::chrono::microseconds most) {
    std::uniform_int_distribution<long> moments(0, most.count());
    std::this_thread::sleep_for(std::chrono::microseconds(moments(chance)));
}

/// Somebody who reads requests all the time, whoever writes them.
class Reader {
  public:
    Reader()
        : thread_([this](const std::stop_token& end) {
              while (!end.stop_requested())
                  if (!Container::requestIsWhole())
                      sawHalf_ = true;
          }) {}

    bool sawHalf() const { return sawHalf_; }

  private:
    std::atomic<bool> sawHalf_ = false;
    std::jthread thread_;
};

/// Somebody who sets the volume of an application, to one of three levels after the other.
struct VolumeUser {
    VolumeUser() {
        session.startHostApplication("sin-medir");
        host.emplace();
        reader.emplace();
        for (const char* name : {"10 por ciento", "50 por ciento", "90 por ciento"}) {
            const auto control = reader->await(volume.name, name, "Navegador");
            levels.push_back({control.value(), {}});
            setNext();
            EXPECT_TRUE(soon([&] {
                return std::lround(session.container.state().apps[1].nivel * 100) ==
                       std::stoi(name);
            }));
            levels.back().card = drawnByCommandLine(volume);
        }
        EXPECT_TRUE(seesLevel());
    }

    void setNext() { EXPECT_TRUE(reader->press(levels[++next % levels.size()].control)); }
    bool seesLevel() {
        const Picture& card = levels[next % levels.size()].card;
        return soon([&] { return isSeen(card, session.screen.pictureOf(volume.name)); },
                    promised(1s));
    }
    void killExtension() {
        if (const pid_t extension = host->extension(); extension != 0)
            ::kill(extension, SIGKILL);
    }

    struct Level {
        Heard control;
        Picture card;
    };

    UserSession session;
    std::optional<WidgetHost> host;
    std::optional<ScreenReader> reader;
    std::vector<Level> levels;
    std::size_t next = static_cast<std::size_t>(-1);
};

TEST(Killed, TheExtensionIsThereAgainForTheNextPress) {
    VolumeUser user;
    const Reader requests;
    // An extension that ends under a request more often than this may not start again at once.
    constexpr int accidents = 4;
    for (int turn = 0; turn < accidents; ++turn) {
        const pid_t extension = user.host->extension();
        user.killExtension();
        ASSERT_TRUE(soon([&] { return !isThere(extension); }));
        user.setNext();
        EXPECT_TRUE(user.seesLevel()) << turn;
    }
    EXPECT_FALSE(requests.sawHalf());
}

// Waits for presses that are kept while the extension is not there.
TEST(Killed, TheExtensionIsThereAgainAtAnyMoment) {
    VolumeUser user;
    const Reader requests;
    const int kills = times(20, 1000);
    RecordProperty("kills", kills);
    for (int turn = 0; turn < kills; ++turn) {
        user.setNext();
        letPassUpTo(50ms);
        user.killExtension();
        user.setNext();
        EXPECT_TRUE(user.seesLevel()) << turn;
    }
    EXPECT_FALSE(requests.sawHalf());
}

TEST(Killed, TheWidgetHostKnowsItsPlacesAgainAndLeavesNothingRunning) {
    UserSession session;
    session.container.publish(scene("musica"));
    const int kills = times(3, 100);
    RecordProperty("kills", kills);
    for (int turn = 0; turn < kills; ++turn) {
        WidgetHost host;
        ASSERT_TRUE(soon([&] { return session.screen.window(room.name).has_value(); }));
        ASSERT_TRUE(soon([&] { return host.extension() != 0; }));
        ASSERT_TRUE(soon([&] { return session.placement().has_value(); }));
        const pid_t extension = host.extension();
        const auto card = *session.screen.window(room.name);
        session.screen.click(card.x + card.width / 2, card.y + 10);
        ASSERT_TRUE(soon([&] { return session.screen.activeWindow() == room.name; }));
        session.screen.press({"Control_L", "Left"});
        session.screen.press({"Control_L", "Right"});
        letPassUpTo(100ms);
        host.kill();
        ASSERT_TRUE(session.placement());
        EXPECT_EQ(session.placement()->widgets.size(), widgets.size());
        EXPECT_TRUE(soon([&] { return !isRunning(extension); }));
    }
    const WidgetHost host;
    for (const Widget& widget : widgets)
        EXPECT_TRUE(isSeenAsDrawn(widget, session.screen)) << widget.name;
}

}  // namespace
}  // namespace journeys

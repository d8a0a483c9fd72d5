#include "platform/foundation/SystemClock.hpp"
#include "platform/widgets/WidgetCenter.hpp"
#include "processes/Stage.hpp"
#include "widgethost/MainLoop.hpp"

#include <glib.h>
#include <gtest/gtest.h>

#include <chrono>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <string>

namespace {

using namespace std::chrono_literals;
using widgethost::Session;

constexpr const char* whatIsOn = "nurva.queEstaPuesto";
constexpr const char* profiles = "nurva.ponerUnPerfil";
constexpr const char* room = "nurva.tuCuarto";

TEST(Reloading, WantsToBeAskedAgainAfterAQuarterOfAnHour) {
    const Stage stage;
    const foundation::Date before = foundation::SystemClock().now();
    Session session(realExtension());
    const Viewer viewer(session, room);
    ASSERT_TRUE(soon([&] { return viewer.shown == 1; }));
    const foundation::Date after = foundation::SystemClock().now();
    EXPECT_GE(viewer.face->reloadAfter.value(), before.addingTimeInterval(900));
    EXPECT_LE(viewer.face->reloadAfter.value(), after.addingTimeInterval(900));
}

TEST(Reloading, AsksAWidgetThatWantsItAtOnceNoMoreThanEverySecond) {
    const Stage stage;
    const auto begin = std::chrono::steady_clock::now();
    Session session({.extension = RESTLESS_EXTENSION, .patience = support::patience});
    const Viewer viewer(session, "restless");
    ASSERT_TRUE(soon([&] { return viewer.shown == 3; }));
    EXPECT_TRUE(viewer.shows("now"));
    EXPECT_GE(std::chrono::steady_clock::now() - begin, 1900ms) << "two of about a second";
}

TEST(Reloading, AsksAWidgetAgainOnceItsActionIsDone) {
    const Stage stage(music());
    Session session(realExtension());
    Viewer viewer(session, whatIsOn);
    Viewer pressed(session, profiles);
    ASSERT_TRUE(soon([&] { return viewer.shown == 1 && pressed.shown == 1; }));
    pressed.display->press({.identifier = "AlternarEncendido"});
    ASSERT_TRUE(soon([&] { return pressed.shown == 2; }));
    // Behind whatever else waits in the line.
    session.reload(profiles);
    ASSERT_TRUE(soon([&] { return pressed.shown == 3; }));
    EXPECT_EQ(viewer.shown, 1);
}

TEST(Reloading, AsksAgainWhenTheSnapshotChanges) {
    OneCard card(whatIsOn);
    nurva::EstadoParaWidgets other = music();
    other.perfil = "Cine de noche";
    card.stage.publish(other);
    EXPECT_TRUE(soon([&] { return card.viewer.shows("Cine de noche"); }));
    std::filesystem::remove(card.stage.container() / "estado.json");
    EXPECT_TRUE(soon([&] { return !card.viewer.shows("Cine de noche"); }));
}

TEST(Reloading, FindsAContainerThatComesAfterIt) {
    Stage stage;
    Session session(realExtension());
    const Viewer viewer(session, whatIsOn);
    ASSERT_TRUE(soon([&] { return viewer.shown == 1; }));
    nurva::EstadoParaWidgets estado = music();
    estado.perfil = "Recién llegado";
    stage.publish(estado);
    EXPECT_TRUE(soon([&] { return viewer.shows("Recién llegado"); }));
    std::filesystem::remove_all(stage.container());
    ASSERT_TRUE(soon([&] { return !viewer.shows("Recién llegado"); }));
    stage.publish(estado);
    EXPECT_TRUE(soon([&] { return viewer.shows("Recién llegado"); }));
}

TEST(Reloading, PerformsWhatIsPressedWhileTheContainerIsReplaced) {
    OneCard card(room);
    signalExtension(SIGSTOP);
    card.viewer.display->press({.identifier = "AlternarEncendido"});
    std::filesystem::remove_all(card.stage.container());
    card.stage.publish(music());
    EXPECT_TRUE(soon([&] { return card.stage.request() == R"({"alternarEncendido":{}})"; }));
    card.viewer.display->press({.identifier = "PonerPerfil", .parameters = {{"id", "cine"}}});
    EXPECT_TRUE(soon([&] { return card.stage.request() == R"({"ponerPerfil":{"_0":"cine"}})"; }));
}

TEST(Reloading, AsksAgainWhenTheHostApplicationSaysSo) {
    const Stage stage(music());
    Session session(realExtension());
    const Viewer one(session, whatIsOn);
    const Viewer other(session, room);
    ASSERT_TRUE(soon([&] { return one.shown == 1 && other.shown == 1; }));
    ASSERT_TRUE(isReloadedFromOutside(""));
    EXPECT_TRUE(soon([&] { return one.shown == 2 && other.shown == 2; }));
    ASSERT_TRUE(isReloadedFromOutside(room));
    ASSERT_TRUE(soon([&] { return other.shown == 3; }));
    ASSERT_TRUE(isReloadedFromOutside(whatIsOn));
    ASSERT_TRUE(soon([&] { return one.shown == 3; }));
    EXPECT_EQ(other.shown, 3);
}

TEST(Reloading, AsksAgainForAHostApplicationThatDoesNotWait) {
    OneCard card(room);
    EXPECT_TRUE(soon([&] {
        widgets::WidgetCenter::reloadAllTimelines();
        return card.viewer.shown > 1;
    }));
}

TEST(Reloading, PutsABurstOfReloadsTogetherAndShowsTheLastState) {
    OneCard card(whatIsOn);
    nurva::EstadoParaWidgets estado = music();
    const auto start = std::chrono::steady_clock::now();
    int asked = 0;
    // It goes on until enough has been shown, so that a reload cannot be put off for ever.
    EXPECT_TRUE(soon([&] {
        for (int i = 0; i < 100; ++i, ++asked)
            card.session.reload();
        estado.perfil = "Estado " + std::to_string(asked);
        card.stage.publish(estado);
        return card.viewer.shown >= 20;
    }));
    const auto spans = (std::chrono::steady_clock::now() - start) / 200ms + 1;
    EXPECT_LE(card.viewer.shown, 1 + 4 * spans);  // twenty a second, after the first
    EXPECT_TRUE(soon([&] { return card.viewer.shows(estado.perfil); }));
}

TEST(Reloading, PutsTogetherWhatABurstOfPressesAsksFor) {
    OneCard card(room);
    const auto start = std::chrono::steady_clock::now();
    // It goes on until enough has been shown, so that a press cannot be put off for ever.
    ASSERT_TRUE(soon([&] {
        for (int press = 0; press < 10; ++press)
            card.viewer.display->press({.identifier = "AlternarEncendido"});
        return card.viewer.shown >= 10;
    }));
    const auto spans = (std::chrono::steady_clock::now() - start) / 200ms + 1;
    EXPECT_LE(card.viewer.shown, 1 + 4 * spans);
}

TEST(Reloading, GivesTheHostApplicationAMomentToAnswerAPress) {
    OneCard card(room);
    const auto before = card.viewer.shown;
    const auto start = std::chrono::steady_clock::now();
    card.viewer.display->press({.identifier = "AlternarEncendido"});
    ASSERT_TRUE(soon([&] { return card.viewer.shown > before; }));
    EXPECT_GE(std::chrono::steady_clock::now() - start, 10ms);
}

TEST(Reloading, OutlivesTheBusAndFindsItAgain) {
    OneCard card(room);
    card.stage.bus().end();
    letPass(50ms);
    card.stage.publish(music());
    ASSERT_TRUE(soon([&] { return card.viewer.shown == 2; }));
    card.stage.bus().start();
    EXPECT_TRUE(soon([&] {
        widgets::WidgetCenter::reloadAllTimelines();
        return card.viewer.shown > 2;
    }));
}

/// How often this thread has been on a processor because it wanted to.
long turnsOfThisThread() {
    std::ifstream status("/proc/thread-self/status");
    for (std::string line; std::getline(status, line);)
        if (line.starts_with("voluntary_ctxt_switches:"))
            return std::stol(line.substr(line.find(':') + 1));
    return -1;
}

/// Whether nothing wakes this thread for a while, once it has done what there was to do. The end
/// of the while does, and may be looked at a moment too early.
bool comesToRest(std::chrono::milliseconds time) {
    const auto deadline = std::chrono::steady_clock::now() + support::patience;
    while (std::chrono::steady_clock::now() < deadline) {
        bool isOver = false;
        const widgethost::Source end = widgethost::after(time, [&] { isOver = true; });
        const long before = turnsOfThisThread();
        int iterations = 0;
        while (!isOver) {
            g_main_context_iteration(nullptr, TRUE);
            ++iterations;
        }
        if (iterations <= 2 && turnsOfThisThread() - before <= 2)
            return true;
    }
    return false;
}

TEST(Reloading, WakesNobodyAtRest) {
    OneCard card(room);
    EXPECT_TRUE(comesToRest(300ms));
}

}  // namespace

#include "processes/Stage.hpp"
#include "support/Program.hpp"
#include "support/TemporaryFolder.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <csignal>
#include <filesystem>

namespace {

using namespace std::chrono_literals;
using widgethost::Session;

constexpr const char* volume = "nurva.volumenPorApp";
constexpr const char* room = "nurva.tuCuarto";

/// A snapshot under which the extension cannot go on: a level that is no number of per cent.
nurva::EstadoParaWidgets unbearable() {
    nurva::EstadoParaWidgets estado = music();
    estado.apps.front().nivel = 1e300;
    estado.apps.front().silenciada = false;
    return estado;
}

TEST(Supervision, StartsAnExtensionThatWasKilledWhenItIsNeededAgain) {
    Stage stage;
    stage.publish(music());
    Session session(realExtension());
    Viewer viewer(session, room);
    ASSERT_TRUE(soon([&] { return viewer.shown == 1; }));
    const pid_t first = extensionProcess();
    ASSERT_GT(first, 0);
    signalExtension(SIGKILL);
    letPass(50ms);
    EXPECT_EQ(viewer.shown, 1);
    viewer.display->press({.identifier = "AlternarEncendido"});
    ASSERT_TRUE(soon([&] { return viewer.shown == 2; }));
    EXPECT_TRUE(viewer.face);
    EXPECT_NE(extensionProcess(), first);
    EXPECT_FALSE(stage.request().empty());
}

TEST(Supervision, AsksOnceMoreWhenTheExtensionIsKilledUnderARequest) {
    Stage stage;
    stage.publish(music());
    Session session(realExtension());
    Viewer viewer(session, room);
    ASSERT_TRUE(soon([&] { return viewer.shown == 1; }));
    signalExtension(SIGSTOP);
    session.reload();
    letPass(20ms);
    signalExtension(SIGKILL);
    EXPECT_TRUE(soon([&] { return viewer.shown == 2 && viewer.face; }));
}

TEST(Supervision, EndsAnExtensionThatHangsAndAsksAnother) {
    Stage stage;
    stage.publish(music());
    Session session({.extension = NURVA_EXTENSION, .patience = 200ms});
    Viewer viewer(session, room);
    ASSERT_TRUE(soon([&] { return viewer.shown == 1; }));
    const pid_t first = extensionProcess();
    signalExtension(SIGSTOP);
    session.reload();
    EXPECT_TRUE(soon([&] { return viewer.shown == 2; }));
    EXPECT_TRUE(viewer.face);
    EXPECT_NE(extensionProcess(), first);
    signalExtension(SIGSTOP);
    viewer.display->press({.identifier = "AlternarEncendido"});
    letPass(250ms);
    session.reload();
    EXPECT_TRUE(soon([&] { return viewer.shown == 3; }));
}

TEST(Supervision, ShowsTheStoppedCardOnlyWhereTheExtensionStops) {
    Stage stage;
    stage.publish(music());
    Session session(realExtension());
    Viewer culprit(session, volume);
    Viewer other(session, room);
    ASSERT_TRUE(soon([&] { return culprit.shown == 1 && other.shown == 1; }));
    stage.publish(unbearable());
    ASSERT_TRUE(soon([&] { return !culprit.face; }));
    EXPECT_TRUE(soon([&] { return other.shown == 2; }));
    EXPECT_TRUE(other.face);
}

TEST(Supervision, HealsWithinASecondOfAGoodSnapshot) {
    Stage stage;
    stage.publish(unbearable());
    Session session(realExtension());
    Viewer viewer(session, volume);
    ASSERT_TRUE(soon([&] { return viewer.shown == 1; }));
    ASSERT_FALSE(viewer.face);
    stage.publish(music());
    EXPECT_TRUE(soon([&] { return viewer.face.has_value(); }, 1s));
}

TEST(Supervision, DoesNotStartOverAndOver) {
    Stage stage;
    stage.publish(unbearable());
    Session session(realExtension());
    Viewer viewer(session, volume);
    int starts = 0;
    pid_t last = 0;
    for (int turn = 0; turn < 300; ++turn) {
        stage.publish(unbearable());
        letPass(5ms);
        if (const pid_t now = extensionProcess(); now != 0 && now != last) {
            last = now;
            ++starts;
        }
    }
    EXPECT_GE(starts, 2);
    EXPECT_LE(starts, 6);  // the first, and five more
    EXPECT_FALSE(viewer.face);
}

TEST(Supervision, EndsAnExtensionThatNobodyNeedsAndStartsItAgainForAPress) {
    Stage stage;
    stage.publish(music());
    Session session({.extension = NURVA_EXTENSION, .rest = 100ms});
    Viewer viewer(session, room);
    ASSERT_TRUE(soon([&] { return viewer.shown == 1; }));
    EXPECT_GT(extensionProcess(), 0);
    ASSERT_TRUE(soon([] { return extensionProcess() == 0; }));
    EXPECT_EQ(viewer.shown, 1);
    viewer.display->press({.identifier = "AlternarEncendido"});
    ASSERT_TRUE(soon([&] { return viewer.shown == 2; }));
    EXPECT_TRUE(viewer.face);
    EXPECT_FALSE(stage.request().empty());
}

TEST(Supervision, SaysThatAnExtensionCannotBeStarted) {
    const Stage stage;
    testing::internal::CaptureStderr();
    {
        Session session({.extension = "/nonexistent/extension"});
        const Viewer viewer(session, room);
        EXPECT_TRUE(soon([&] { return viewer.shown == 1; }));
        EXPECT_FALSE(viewer.face);
    }
    EXPECT_NE(testing::internal::GetCapturedStderr().find("/nonexistent/extension"),
              std::string::npos);
}

TEST(Supervision, OutlivesAnExtensionThatEndsAtOnceOrSpeaksNonsense) {
    const support::TemporaryFolder folder;
    const auto starts = folder.path() / "starts";
    const auto nonsense = folder.write(
        "nonsense", "#!/bin/sh\necho start >>'" + starts.string() + "'\necho hello >&3\n");
    std::filesystem::permissions(nonsense, std::filesystem::perms::owner_all);
    const Stage stage;
    Session session({.extension = nonsense});
    const Viewer viewer(session, room);
    ASSERT_TRUE(soon([&] { return viewer.shown == 1; }));
    EXPECT_FALSE(viewer.face);
    letPass(200ms);
    const std::string started = support::contentsOf(starts);
    EXPECT_LE(std::ranges::count(started, '\n'), 6);
    EXPECT_EQ(viewer.shown, 1);
}

}  // namespace

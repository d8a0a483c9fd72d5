#include "processes/Stage.hpp"
#include "support/Program.hpp"
#include "support/TemporaryFolder.hpp"

#include <gtest/gtest.h>
#include <sys/wait.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstddef>
#include <filesystem>
#include <string>

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

/// Ten times what this machine takes now for a first face: nothing that works takes so long.
std::chrono::milliseconds amplyLong() {
    const auto start = std::chrono::steady_clock::now();
    const OneCard card(room);
    return 10 *
           std::chrono::ceil<std::chrono::milliseconds>(std::chrono::steady_clock::now() - start);
}

/// A program of the extension that counts how often it is started.
class CountedExtension {
  public:
    explicit CountedExtension(const std::string& does)
        : program_(
              folder_.write("extension",
                            "#!/bin/sh\necho start >>'" + starts_.string() + "'\n" + does + "\n")),
          first_(std::chrono::steady_clock::now()) {
        std::filesystem::permissions(program_, std::filesystem::perms::owner_all);
    }

    const std::filesystem::path& program() const { return program_; }
    std::ptrdiff_t starts() const {
        const std::string started = support::contentsOf(starts_);
        return std::ranges::count(started, '\n');
    }
    /// How often it may have been started by now: five times in ten seconds, and once more.
    std::ptrdiff_t mostStarts() const {
        return 5 * ((std::chrono::steady_clock::now() - first_) / 10s + 1) + 1;
    }
    /// How often besides for snapshots that stood, since a busy machine published no other.
    std::ptrdiff_t mostStartsForSnapshots() const {
        return (std::chrono::steady_clock::now() - first_) / 500ms;
    }

  private:
    support::TemporaryFolder folder_;
    std::filesystem::path starts_ = folder_.path() / "starts";
    std::filesystem::path program_;
    std::chrono::steady_clock::time_point first_;
};

TEST(Supervision, StartsAnExtensionThatWasKilledWhenItIsNeededAgain) {
    OneCard card(room);
    const pid_t first = extensionProcess();
    ASSERT_GT(first, 0);
    signalExtension(SIGKILL);
    ASSERT_TRUE(soon([] { return extensionProcess() == 0; }));
    EXPECT_EQ(card.viewer.shown, 1);
    card.viewer.display->press({.identifier = "AlternarEncendido"});
    ASSERT_TRUE(soon([&] { return card.viewer.shown == 2; }));
    EXPECT_TRUE(card.viewer.face);
    EXPECT_NE(extensionProcess(), first);
    EXPECT_FALSE(card.stage.request().empty());
}

TEST(Supervision, AsksOnceMoreWhenTheExtensionIsKilledUnderARequest) {
    OneCard card(room);
    signalExtension(SIGSTOP);
    card.session.reload();
    signalExtension(SIGKILL);
    EXPECT_TRUE(soon([&] { return card.viewer.shown == 2 && card.viewer.face; }));
}

TEST(Supervision, PerformsAPressAgainWhoseExtensionIsKilledBeforeItDidAnything) {
    OneCard card(room);
    signalExtension(SIGSTOP);
    card.viewer.display->press({.identifier = "AlternarEncendido"});
    signalExtension(SIGKILL);
    ASSERT_TRUE(soon([&] { return card.viewer.shown == 2; }));
    EXPECT_FALSE(card.stage.request().empty());
}

TEST(Supervision, LosesNothingToAnExtensionWhoseEndNobodyHasNoticedYet) {
    OneCard card(room);
    const auto endUnnoticed = [] {
        const pid_t process = extensionProcess();
        signalExtension(SIGABRT);  // an end of which the extension itself would be to blame
        siginfo_t ended;
        ASSERT_EQ(::waitid(P_PID, static_cast<id_t>(process), &ended, WEXITED | WNOWAIT), 0);
    };
    endUnnoticed();
    card.viewer.display->press({.identifier = "AlternarEncendido"});
    ASSERT_TRUE(soon([&] { return card.viewer.shown == 2; }));
    EXPECT_TRUE(card.viewer.face);
    EXPECT_FALSE(card.stage.request().empty());
    endUnnoticed();
    card.session.reload();
    ASSERT_TRUE(soon([&] { return card.viewer.shown == 3; }));
    EXPECT_TRUE(card.viewer.face);
}

TEST(Supervision, EndsAnExtensionThatHangsAndAsksAnother) {
    OneCard card(room, {.extension = NURVA_EXTENSION, .patience = amplyLong()});
    const pid_t first = extensionProcess();
    signalExtension(SIGSTOP);
    card.session.reload();
    ASSERT_TRUE(soon([&] { return card.viewer.shown == 2; }));
    EXPECT_TRUE(card.viewer.face);
    const pid_t second = extensionProcess();
    EXPECT_NE(second, first);
    signalExtension(SIGSTOP);
    card.viewer.display->press({.identifier = "AlternarEncendido"});
    ASSERT_TRUE(soon([&] { return extensionProcess() != second; }));
    card.session.reload();
    ASSERT_TRUE(soon([&] { return card.viewer.shown == 3; }));
    EXPECT_TRUE(card.viewer.face);
    EXPECT_TRUE(card.stage.request().empty()) << "what hung once would do so again";
}

TEST(Supervision, ShowsTheStoppedCardOnlyWhereTheExtensionStops) {
    Stage stage(music());
    Session session(realExtension());
    Viewer culprit(session, volume);
    Viewer other(session, room);
    ASSERT_TRUE(soon([&] { return culprit.shown == 1 && other.shown == 1; }));
    stage.publish(unbearable());
    ASSERT_TRUE(soon([&] { return !culprit.face; }));
    EXPECT_TRUE(soon([&] { return other.shown == 2; }));
    EXPECT_TRUE(other.face);
}

TEST(Supervision, HealsWithAGoodSnapshot) {
    Stage stage(unbearable());
    Session session(realExtension());
    Viewer viewer(session, volume);
    ASSERT_TRUE(soon([&] { return viewer.shown == 1; }));
    ASSERT_FALSE(viewer.face);
    stage.publish(music());
    EXPECT_TRUE(soon([&] { return viewer.face.has_value(); }));
}

TEST(Supervision, HealsWithAGoodSnapshotHoweverOftenItHasStoppedBefore) {
    Stage stage(unbearable());
    const auto end = std::chrono::steady_clock::now() + support::patience;
    bool heals = false;
    // A busy machine may take the ten seconds after which it is started anyway.
    while (!heals && std::chrono::steady_clock::now() < end) {
        const auto begin = std::chrono::steady_clock::now();
        const CountedExtension extension("exec '" NURVA_EXTENSION "'");
        Session session({.extension = extension.program(), .patience = support::patience});
        const Viewer viewer(session, volume);
        ASSERT_TRUE(soon([&] {
            stage.publish(unbearable());
            return extension.starts() >= 5 && extensionProcess() == 0;
        }));
        stage.publish(music());
        ASSERT_TRUE(soon([&] { return viewer.face.has_value(); }));
        heals = std::chrono::steady_clock::now() - begin < 10s;
    }
    EXPECT_TRUE(heals);
}

TEST(Supervision, DoesNotStartOverAndOver) {
    Stage stage(unbearable());
    const CountedExtension extension("exec '" NURVA_EXTENSION "'");
    Session session({.extension = extension.program(), .patience = support::patience});
    const Viewer viewer(session, volume);
    EXPECT_TRUE(soon([&] {
        stage.publish(unbearable());
        return extension.starts() >= 5;
    }));
    for (int turn = 0; turn < 100; ++turn) {
        stage.publish(unbearable());
        letPass(5ms);
    }
    EXPECT_LE(extension.starts(), extension.mostStarts() + extension.mostStartsForSnapshots());
    EXPECT_TRUE(viewer.faces.empty());
}

TEST(Supervision, EndsAnExtensionThatNobodyNeedsAndStartsItAgainForAPress) {
    OneCard card(room, {.extension = NURVA_EXTENSION, .rest = amplyLong()});
    ASSERT_TRUE(soon([] { return extensionProcess() == 0; }));
    EXPECT_EQ(card.viewer.shown, 1);
    card.viewer.display->press({.identifier = "AlternarEncendido"});
    ASSERT_TRUE(soon([&] { return card.viewer.shown == 2; }));
    EXPECT_TRUE(card.viewer.face);
    EXPECT_FALSE(card.stage.request().empty());
}

TEST(Supervision, EndsNoExtensionThatItWaitsFor) {
    OneCard card(room, {.extension = NURVA_EXTENSION, .patience = support::patience, .rest = 1ms});
    for (int shown = 2; shown < 5; ++shown) {
        card.viewer.display->press({.identifier = "AlternarEncendido"});
        ASSERT_TRUE(soon([&] { return card.viewer.shown == shown; }));
    }
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

TEST(Supervision, TriesEverySecondToStartAnExtensionThatCannotBeStarted) {
    const Stage stage(music());
    const support::TemporaryFolder folder;
    const std::filesystem::path program = folder.path() / "extension";
    testing::internal::CaptureStderr();
    const auto begin = std::chrono::steady_clock::now();
    Session session({.extension = program, .patience = support::patience});
    const Viewer viewer(session, room);
    EXPECT_TRUE(soon([&] { return viewer.shown == 1; }));
    letPass(200ms);
    const auto seconds = (std::chrono::steady_clock::now() - begin) / 1s;
    std::filesystem::create_symlink(NURVA_EXTENSION, program);
    EXPECT_TRUE(soon([&] { return viewer.face.has_value(); }));
    const std::string said = testing::internal::GetCapturedStderr();
    EXPECT_GE(std::ranges::count(said, '\n'), 1);
    EXPECT_LE(std::ranges::count(said, '\n'), seconds + 2) << said;
}

TEST(Supervision, OutlivesAnExtensionThatEndsAtOnceOrSpeaksNonsense) {
    const CountedExtension nonsense("echo hello >&3");
    const Stage stage;
    Session session({.extension = nonsense.program()});
    const Viewer viewer(session, room);
    ASSERT_TRUE(soon([&] { return viewer.shown == 1 && nonsense.starts() >= 5; }));
    letPass(200ms);
    EXPECT_LE(nonsense.starts(), nonsense.mostStarts());
    EXPECT_EQ(viewer.shown, 1);
    EXPECT_FALSE(viewer.face);
}

}  // namespace

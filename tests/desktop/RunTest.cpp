#include "desktop/TestScreen.hpp"
#include "support/ChildProcess.hpp"
#include "support/Patience.hpp"
#include "support/PrivateSessionBus.hpp"
#include "support/Program.hpp"
#include "support/TemporaryFolder.hpp"
#include "support/XServer.hpp"

#include <gmock/gmock.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdint>
#include <filesystem>
#include <string>
#include <thread>
#include <vector>

namespace desktop {
namespace {

/// The program on the screen of the tests, with settings and a session bus of its own.
struct Program : testing::Test {
    Program() {
        ::setenv("XDG_CONFIG_HOME", folder.path().c_str(), 1);
        ::setenv("LANGUAGE", "es", 1);
        ::setenv("LC_ALL", "C.UTF-8", 1);
        EXPECT_TRUE(hasWindows(0)) << "those of another program are still there";
    }
    ~Program() override { ::unsetenv("XDG_CONFIG_HOME"); }

    static support::ChildProcess start(std::vector<std::string> arguments = {}) {
        arguments.insert(arguments.begin(), PAINTED_DESKTOP);
        return support::ChildProcess(arguments);
    }
    static support::Outcome run(const std::string& arguments, const std::string& variables = "") {
        return support::run(variables + " '" PAINTED_DESKTOP "' " + arguments);
    }
    static std::size_t windowCount() {
        return screen::property(screen::rootWindow(), "_NET_CLIENT_LIST").size();
    }
    static bool hasWindows(std::size_t count) {
        return screen::waitFor([&] { return windowCount() == count; });
    }

    support::PrivateSessionBus bus;
    support::TemporaryFolder folder;
};

TEST_F(Program, SaysThatThereIsNoDisplay) {
    const auto outcome = run("", "env -u DISPLAY -u WAYLAND_DISPLAY");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_THAT(outcome.errors, testing::StartsWith("nurva-desktop: no hay pantalla"));
    EXPECT_EQ(std::count(outcome.errors.begin(), outcome.errors.end(), '\n'), 1);
}

TEST_F(Program, SaysWhatIsWrongWithItsUse) {
    for (const char* arguments : {"--no-such-option", "--scale=0", "--scale=nan", "--scale=99",
                                  "--scale=abc", "something"}) {
        const auto outcome = run(arguments);
        EXPECT_EQ(outcome.status, 2) << arguments;
        EXPECT_THAT(outcome.errors, testing::StartsWith("nurva-desktop: ")) << arguments;
    }
    const auto help = run("--help");
    EXPECT_EQ(help.status, 0);
    EXPECT_THAT(help.output, testing::HasSubstr("--gallery"));
}

TEST_F(Program, EndsWhenItIsAskedToAndRemembersThePlaces) {
    for (const int signal : {SIGTERM, SIGINT}) {
        auto program = start();
        EXPECT_TRUE(hasWindows(4));
        program.signal(signal);
        EXPECT_EQ(program.wait(), 0);
        EXPECT_TRUE(hasWindows(0));
        EXPECT_TRUE(std::filesystem::exists(folder.path() / "nurva-widgets" / "placement.json"));
    }
}

TEST_F(Program, StartedAgainItOpensTheGalleryOfTheFirst) {
    auto first = start();
    EXPECT_TRUE(hasWindows(4));
    auto second = start();
    EXPECT_EQ(second.wait(), 0);
    EXPECT_TRUE(hasWindows(5));
    first.signal(SIGTERM);
    EXPECT_EQ(first.wait(), 0);
}

TEST_F(Program, OpensItsGalleryWhereItIsAskedFor) {
    auto program = start({"--gallery"});
    EXPECT_TRUE(hasWindows(5));
    program.signal(SIGTERM);
    EXPECT_EQ(program.wait(), 0);
}

TEST_F(Program, ExplainsOrdinaryWindowsOnce) {
    for (const std::size_t windows : {5u, 4u}) {
        auto program = start({"--windows"});
        EXPECT_TRUE(hasWindows(windows));
        program.signal(SIGTERM);
        EXPECT_EQ(program.wait(), 0);
        EXPECT_TRUE(hasWindows(0));
    }
}

TEST_F(Program, RunsWithoutASessionBus) {
    bus.end();
    auto program = start();
    EXPECT_TRUE(hasWindows(4));
    program.signal(SIGTERM);
    EXPECT_EQ(program.wait(), 0);
}

TEST_F(Program, EndsWithAMessageWhenTheDisplayGoesAway) {
    support::XServer server(800, 600);
    support::ChildProcess program(
        {"sh", "-c", "DISPLAY=" + server.display() + " '" PAINTED_DESKTOP "' 2>&1; echo $?"});
    ASSERT_TRUE(screen::waitFor([&] {
        return std::filesystem::exists(folder.path() / "nurva-widgets" / "placement.json");
    }));
    server.end();
    EXPECT_EQ(program.line(), "nurva-desktop: se ha perdido la pantalla");
    EXPECT_EQ(program.line(), "1");
}

/// Voluntary context switches of all threads of a process: how often it went to sleep.
std::uint64_t sleeps(const std::string& process) {
    std::uint64_t sum = 0;
    for (const auto& task : std::filesystem::directory_iterator("/proc/" + process + "/task")) {
        const std::string status = support::contentsOf(task.path() / "status");
        const std::string key = "\nvoluntary_ctxt_switches:";
        if (const auto at = status.find(key); at != std::string::npos)
            sum += std::stoull(status.substr(at + key.size()));
    }
    return sum;
}

TEST_F(Program, NothingWakesItAtRest) {
    support::ChildProcess program({"sh", "-c", "echo $$; exec '" PAINTED_DESKTOP "'"});
    const std::string process = program.line().value_or("");
    EXPECT_TRUE(hasWindows(4));
    const auto deadline = std::chrono::steady_clock::now() + support::patience;
    bool isStill = false;
    while (!isStill && std::chrono::steady_clock::now() < deadline) {
        const std::uint64_t before = sleeps(process);
        std::this_thread::sleep_for(std::chrono::milliseconds(700));
        isStill = sleeps(process) == before;
    }
    EXPECT_TRUE(isStill);
    program.signal(SIGTERM);
    EXPECT_EQ(program.wait(), 0);
}

}  // namespace
}  // namespace desktop

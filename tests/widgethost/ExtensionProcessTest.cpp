#include "support/Patience.hpp"
#include "support/TemporaryFolder.hpp"
#include "widgethost/ExtensionProcess.hpp"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/time.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <csignal>
#include <filesystem>
#include <system_error>
#include <thread>

namespace widgethost {
namespace {

/// How many descriptors this process may have for now.
class DescriptorLimit {
  public:
    explicit DescriptorLimit(int most) {
        ::getrlimit(RLIMIT_NOFILE, &before_);
        const rlimit limit{static_cast<rlim_t>(most), before_.rlim_max};
        ::setrlimit(RLIMIT_NOFILE, &limit);
    }
    DescriptorLimit(const DescriptorLimit&) = delete;
    DescriptorLimit& operator=(const DescriptorLimit&) = delete;
    ~DescriptorLimit() { ::setrlimit(RLIMIT_NOFILE, &before_); }

  private:
    rlimit before_{};
};

/// A signal that comes again and again, and interrupts whoever waits, until the end of the test.
class Interruptions {
  public:
    Interruptions() {
        struct sigaction action {};
        action.sa_handler = [](int) {};
        ::sigaction(SIGALRM, &action, &before_);
        every(10'000);
    }
    Interruptions(const Interruptions&) = delete;
    Interruptions& operator=(const Interruptions&) = delete;
    ~Interruptions() {
        every(0);
        ::sigaction(SIGALRM, &before_, nullptr);
    }

  private:
    static void every(suseconds_t microseconds) {
        const itimerval interval{{0, microseconds}, {0, microseconds}};
        ::setitimer(ITIMER_REAL, &interval, nullptr);
    }

    struct sigaction before_ {};
};

bool ends(const ExtensionProcess& process) {
    const auto deadline = std::chrono::steady_clock::now() + support::patience;
    while (!process.hasEnded() && std::chrono::steady_clock::now() < deadline)
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    return process.hasEnded();
}

bool hasChildren() {
    return ::waitpid(-1, nullptr, WNOHANG) >= 0 || errno != ECHILD;
}

TEST(ExtensionProcess, IsStartedOnlyWhereItsEndIsNoticed) {
    if (NURVA_SANITIZED)
        GTEST_SKIP() << "a sanitizer needs descriptors of its own to look at an object";
    const int lowestFree = ::dup(STDIN_FILENO);
    ASSERT_GE(lowestFree, 0);
    ::close(lowestFree);
    int started = 0;
    int refused = 0;
    for (int room = 0; room < 8; ++room) {
        bool isNoticed = true;
        try {
            const DescriptorLimit limit(lowestFree + room);
            const ExtensionProcess process("/bin/true");
            isNoticed = ends(process);
            ++started;
        } catch (const std::system_error& error) {
            EXPECT_EQ(error.code().value(), EMFILE);
            ++refused;
        }
        EXPECT_TRUE(isNoticed) << room << " free descriptors";
        EXPECT_FALSE(hasChildren());
    }
    EXPECT_GT(started, 0);
    EXPECT_GT(refused, 2) << "a pair of sockets and the handle of the process";
}

TEST(ExtensionProcess, IsGivenItsTimeWhateverElseHappens) {
    const support::TemporaryFolder folder;
    const auto program =
        folder.write("program", "#!/bin/sh\nread nothing <&3\nsleep 0.1\nexit 7\n");
    std::filesystem::permissions(program, std::filesystem::perms::owner_all);
    ExtensionProcess process(program);
    const Interruptions interruptions;
    EXPECT_EQ(process.end(), 7);
    EXPECT_FALSE(process.wasKilled());
}

}  // namespace
}  // namespace widgethost

#include "support/TemporaryFolder.hpp"
#include "widgethost/ExtensionProcess.hpp"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/time.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <filesystem>
#include <system_error>

namespace widgethost {
namespace {

/// How many descriptors this process may have, until the end of the test.
class DescriptorLimit {
  public:
    DescriptorLimit() { ::getrlimit(RLIMIT_NOFILE, &before_); }
    DescriptorLimit(const DescriptorLimit&) = delete;
    DescriptorLimit& operator=(const DescriptorLimit&) = delete;
    ~DescriptorLimit() { ::setrlimit(RLIMIT_NOFILE, &before_); }

    void set(rlim_t most) const {
        const rlimit limit{most, before_.rlim_max};
        ::setrlimit(RLIMIT_NOFILE, &limit);
    }

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

bool hasChildren() {
    return ::waitpid(-1, nullptr, WNOHANG) >= 0 || errno != ECHILD;
}

TEST(ExtensionProcess, IsStartedOnlyWhereItsEndIsNoticed) {
    const int lowestFree = ::dup(STDIN_FILENO);
    ASSERT_GE(lowestFree, 0);
    ::close(lowestFree);
    const DescriptorLimit limit;
    int started = 0;
    int refused = 0;
    for (int room = 0; room < 8; ++room) {
        limit.set(static_cast<rlim_t>(lowestFree + room));
        try {
            ExtensionProcess process("/bin/true");
            ++started;
            process.end();
            EXPECT_FALSE(process.wasKilled()) << room << " free descriptors";
        } catch (const std::system_error& error) {
            ++refused;
            EXPECT_EQ(error.code().value(), EMFILE);
        }
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

#include "support/Patience.hpp"
#include "support/Program.hpp"
#include "widgethost/ExtensionProcess.hpp"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <seccomp.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <cstdlib>
#include <string>

namespace {

TEST(Extension, SaysWhoStartsItWhenAPersonDoes) {
    const auto outcome = support::run(NURVA_EXTENSION " 3<&-");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_NE(outcome.errors.find("nurva desktop"), std::string::npos);
}

TEST(Extension, LinksNeitherAToolkitNorADisplay) {
    const auto all = support::run("ldd " NURVA_EXTENSION);
    ASSERT_EQ(all.status, 0);
    EXPECT_NE(all.output.find("libcairo"), std::string::npos);
    for (const char* library : {"libgtk", "libgdk", "libwayland"})
        EXPECT_EQ(all.output.find(library), std::string::npos) << library;
    // Cairo brings that of X along, unused.
    const auto own = support::run("readelf -d " NURVA_EXTENSION " | grep NEEDED");
    EXPECT_NE(own.output.find("libcairo"), std::string::npos);
    EXPECT_EQ(own.output.find("libX11"), std::string::npos);
}

/// The exit status of an extension that was started and whose socket was closed then; on a kernel
/// without Landlock if wanted.
int statusOfExtension(bool requiresSandbox, bool withoutLandlock) {
    const pid_t child = ::fork();
    if (child == 0) {
        if (withoutLandlock) {
            scmp_filter_ctx filter = seccomp_init(SCMP_ACT_ALLOW);
            seccomp_rule_add(filter, SCMP_ACT_ERRNO(ENOSYS), SCMP_SYS(landlock_create_ruleset), 0);
            seccomp_load(filter);
        }
        // What looks for leaks at a process's end would have to trace it.
        ::setenv("ASAN_OPTIONS", "detect_leaks=0", 1);
        ::dup2(::open("/dev/null", O_WRONLY), STDERR_FILENO);
        widgethost::ExtensionProcess extension(NURVA_EXTENSION, requiresSandbox);
        extension.takeSocket();
        // Before it is asked to end, which it would have to at once.
        const auto deadline = std::chrono::steady_clock::now() + support::patience;
        while (!extension.hasEnded() && std::chrono::steady_clock::now() < deadline)
            ::usleep(1000);
        ::_exit(extension.end());
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    return WEXITSTATUS(status);
}

TEST(Extension, RunsWithWhatTheKernelGrantsUnlessItMayNot) {
    EXPECT_EQ(statusOfExtension(false, false), 0);
    EXPECT_EQ(statusOfExtension(true, false), 0);
    EXPECT_EQ(statusOfExtension(false, true), 0);
    EXPECT_EQ(statusOfExtension(true, true), 1);
}

}  // namespace

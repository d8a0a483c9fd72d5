#include "widgethost/ExtensionProcess.hpp"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
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

}  // namespace
}  // namespace widgethost

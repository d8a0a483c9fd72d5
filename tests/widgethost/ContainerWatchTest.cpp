#include "support/TemporaryFolder.hpp"
#include "support/World.hpp"
#include "widgethost/ContainerWatch.hpp"

#include <gtest/gtest.h>
#include <seccomp.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>

namespace widgethost {
namespace {

/// From now on this process gets no inotify, as where other programs have taken all there is.
bool takeAllWatches() {
    const scmp_filter_ctx filter = ::seccomp_init(SCMP_ACT_ALLOW);
    return ::seccomp_rule_add(filter, SCMP_ACT_ERRNO(EMFILE), SCMP_SYS(inotify_init1), 0) == 0 &&
           ::seccomp_load(filter) == 0;
}

/// Watches the container of the extension's group; ends with how many watches it got.
[[noreturn]] void watchAndEnd(const std::filesystem::path& data) {
    ::setenv("XDG_DATA_HOME", data.c_str(), 1);
    const auto watches =
        watchContainers(support::World::spanishBundle(), {.onFile = [] {}, .onFolder = [] {}});
    ::_exit(static_cast<int>(watches.size()));
}

TEST(ContainerWatch, WatchesTheContainerOfTheGroup) {
    const support::TemporaryFolder home;
    EXPECT_EXIT(watchAndEnd(home.path()), testing::ExitedWithCode(1), "^$");
}

TEST(ContainerWatch, SaysWhatToDoAndGoesOnWhereNoWatchIsLeft) {
    const support::TemporaryFolder home;
    const auto withoutWatches = [&] {
        if (!takeAllWatches())
            ::_exit(9);
        watchAndEnd(home.path());
    };
    EXPECT_EXIT(withoutWatches(), testing::ExitedWithCode(0),
                "group-containers/.*inotify.*fs.inotify");
}

}  // namespace
}  // namespace widgethost

#include "platform/foundation/files/WriteFile.hpp"
#include "support/TemporaryFolder.hpp"
#include "widgethost/FolderWatch.hpp"

#include <glib.h>
#include <gtest/gtest.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <functional>
#include <string_view>

namespace {

/// Called with each path that could not be watched, right after the system said so.
std::function<void(std::string_view path)> afterRefusal;

}  // namespace

/// In the place of the C library's, so that tests can change the folders between two watches.
extern "C" int inotify_add_watch(int notifier, const char* path, std::uint32_t mask) noexcept {
    const auto watch = static_cast<int>(::syscall(SYS_inotify_add_watch, notifier, path, mask));
    const int error = errno;
    if (watch < 0 && afterRefusal)
        afterRefusal(path);
    errno = error;
    return watch;
}

namespace widgethost {
namespace {

/// A watch on the folder `a/b` for its file `state`, and what it told of.
struct Watched : testing::Test {
    std::filesystem::path folder() const { return above.path() / "a" / "b"; }

    /// What came since the last look.
    std::pair<int, int> told() {
        while (g_main_context_iteration(nullptr, FALSE))
            continue;
        return {std::exchange(files, 0), std::exchange(folders, 0)};
    }

    support::TemporaryFolder above;
    int files = 0;
    int folders = 0;
};

/// A watch on the folder, counting for the test.
FolderWatch watch(Watched& test) {
    return FolderWatch(test.folder(), {"state"},
                       {.onFile = [&] { ++test.files; }, .onFolder = [&] { ++test.folders; }});
}

using Told = std::pair<int, int>;

TEST_F(Watched, TellsOfItsFilesAndOfNoOthers) {
    std::filesystem::create_directories(folder());
    const FolderWatch watched = watch(*this);
    foundation::writeFileAtomically("1", folder() / "state");
    EXPECT_EQ(told(), Told(1, 0));
    foundation::writeFileAtomically("2", folder() / "state");
    EXPECT_EQ(told(), Told(1, 0));
    foundation::writeFileAtomically("1", folder() / "other");
    EXPECT_EQ(told(), Told(0, 0));
    std::filesystem::remove(folder() / "state");
    EXPECT_EQ(told(), Told(1, 0));
}

TEST_F(Watched, TellsOfTheFolderWhenItComesHoweverDeep) {
    const FolderWatch watched = watch(*this);
    std::filesystem::create_directories(folder());
    EXPECT_EQ(told(), Told(0, 1));
    foundation::writeFileAtomically("1", folder() / "state");
    EXPECT_EQ(told(), Told(1, 0));
}

TEST_F(Watched, TellsWhenTheFolderGoesAndComesBack) {
    std::filesystem::create_directories(folder());
    const FolderWatch watched = watch(*this);
    std::filesystem::remove_all(folder());
    EXPECT_EQ(told(), Told(0, 1));
    std::filesystem::create_directory(folder());
    EXPECT_EQ(told(), Told(0, 1));
    std::filesystem::rename(folder(), above.path() / "elsewhere");
    EXPECT_EQ(told(), Told(0, 1));
    std::filesystem::rename(above.path() / "elsewhere", folder());
    EXPECT_EQ(told(), Told(0, 1));
    foundation::writeFileAtomically("1", folder() / "state");
    EXPECT_EQ(told(), Told(1, 0));
}

TEST_F(Watched, FollowsAFolderWhoseParentIsReplaced) {
    std::filesystem::create_directories(folder());
    const FolderWatch watched = watch(*this);
    std::filesystem::remove_all(above.path() / "a");
    EXPECT_EQ(told(), Told(0, 1));
    std::filesystem::create_directories(folder());
    EXPECT_EQ(told(), Told(0, 1));
}

TEST_F(Watched, SeesAFolderThatComesWhileTheOneAboveIsLookedAt) {
    afterRefusal = [&](std::string_view path) {
        if (path == folder().string())
            std::filesystem::create_directories(folder());
    };
    const FolderWatch watched = watch(*this);
    afterRefusal = {};
    foundation::writeFileAtomically("1", folder() / "state");
    EXPECT_EQ(told(), Told(1, 0));
}

TEST_F(Watched, TellsOfTheFolderWhenMoreHappenedThanTheSystemKeeps) {
    std::filesystem::create_directories(folder());
    const FolderWatch watched = watch(*this);
    long kept = 0;
    std::ifstream("/proc/sys/fs/inotify/max_queued_events") >> kept;
    ASSERT_GT(kept, 0);
    for (long event = 0; event <= kept; ++event)  // the same twice running would be kept as one
        std::ofstream(folder() / (event % 2 == 0 ? "other" : "another"));
    foundation::writeFileAtomically("1", folder() / "state");
    EXPECT_EQ(told(), Told(0, 1));
    foundation::writeFileAtomically("2", folder() / "state");
    EXPECT_EQ(told(), Told(1, 0));
}

TEST_F(Watched, GoesWithoutAFolderThatItMayNotWatch) {
    std::filesystem::create_directories(folder());
    std::filesystem::permissions(above.path(), std::filesystem::perms(0755));
    std::filesystem::permissions(folder(), std::filesystem::perms::none);
    const auto watchAsNobody = [&] {
        constexpr uid_t nobody = 65534;
        if (::geteuid() == 0 && ::setresuid(nobody, nobody, nobody) != 0)
            ::_exit(1);
        const FolderWatch watched = watch(*this);
        ::_exit(told() == Told(0, 0) ? 0 : 2);
    };
    EXPECT_EXIT(watchAsNobody(), testing::ExitedWithCode(0), "");
    std::filesystem::permissions(folder(), std::filesystem::perms::owner_all);
}

}  // namespace
}  // namespace widgethost

#include "platform/foundation/files/FailingFileCalls.hpp"
#include "platform/foundation/files/FileError.hpp"
#include "platform/foundation/files/ReadFile.hpp"
#include "platform/foundation/files/WriteFile.hpp"
#include "support/TemporaryFolder.hpp"

#include <fcntl.h>
#include <gtest/gtest.h>

#include <iterator>
#include <optional>
#include <string>
#include <vector>

namespace foundation {
namespace {

namespace fs = std::filesystem;

std::ptrdiff_t entryCount(const fs::path& folder) {
    return std::distance(fs::directory_iterator(folder), fs::directory_iterator());
}

/// What came of a write: the error, or none.
std::optional<int> written(std::string_view bytes, const fs::path& path, const FileCalls& calls) {
    try {
        writeFileDurably(bytes, path, calls);
        return std::nullopt;
    } catch (const FileError& error) {
        return error.code();
    }
}

/// Notes what is put on the disk and when the file takes its place.
struct WatchedCalls : FileCalls {
    mutable std::vector<std::string> happened;

    int fsync(int file) const override {
        struct stat status {};
        FileCalls::fstat(file, &status);
        happened.emplace_back(S_ISDIR(status.st_mode) ? "folder" : "file");
        return FileCalls::fsync(file);
    }
    int rename(const char* from, const char* to) const override {
        happened.emplace_back("place");
        return FileCalls::rename(from, to);
    }
};

TEST(WriteFileDurably, MakesTheFoldersOnTheWayForTheUserAlone) {
    const support::TemporaryFolder folder;
    const fs::path path = folder.path() / "a" / "b" / "file";
    writeFileDurably("old", path);
    writeFileDurably("new", path);
    EXPECT_EQ(readFile(path), "new");
    EXPECT_EQ(entryCount(path.parent_path()), 1);
    for (const fs::path& made : {folder.path() / "a", folder.path() / "a" / "b"})
        EXPECT_EQ(fs::status(made).permissions(), fs::perms(0700)) << made;
    EXPECT_EQ(fs::status(path).permissions(), fs::perms(0600));
}

TEST(WriteFileDurably, WritesWhereNoFolderIsNamed) {
    const support::TemporaryFolder folder;
    const fs::path before = fs::current_path();
    fs::current_path(folder.path());
    writeFileDurably("1", "file");
    writeFileDurably("2", fs::path("a") / "file");
    fs::current_path(before);
    EXPECT_EQ(readFile(folder.path() / "file"), "1");
    EXPECT_EQ(readFile(folder.path() / "a" / "file"), "2");
}

TEST(WriteFileDurably, HasTheContentsOnTheDiskBeforeTheyTakeTheirPlaceAndTheNameAfter) {
    const support::TemporaryFolder folder;
    const WatchedCalls calls;
    writeFileDurably("new", folder.path() / "a" / "file", calls);
    EXPECT_EQ(calls.happened, (std::vector<std::string>{"folder", "file", "place", "folder"}));
}

TEST(WriteFileDurably, LeavesTheOldFileOrTheNewOneWhateverFails) {
    for (const char* call : {"mkdir", "getrandom", "open", "fstat", "flock", "write", "fsync",
                             "rename", "unlink", "opendir", "readdir"})
        for (const int error : {EIO, EMFILE, ENOENT, EEXIST, EINVAL})
            for (int turn = 1; turn <= 3; ++turn) {
                SCOPED_TRACE(std::string(call) + " " + std::to_string(error) + " turn " +
                             std::to_string(turn));
                const support::TemporaryFolder folder;
                const fs::path path = folder.path() / "a" / "file";
                FailingFileCalls failing;
                failing.failures[call] = {.error = error, .turn = turn};
                const auto first = written("first", path, failing);
                EXPECT_TRUE(first || readFile(path) == "first");
                EXPECT_EQ(written("old", path, FailingFileCalls()), std::nullopt);
                failing.failures[call].turn += failing.count(call);
                const auto second = written("new", path, failing);
                const std::string stands = readFile(path);
                EXPECT_TRUE(stands == "new" || (second && stands == "old")) << stands;
                EXPECT_EQ(entryCount(path.parent_path()), 1);
            }
}

TEST(WriteFileDurably, SaysWhatFailed) {
    for (const char* call : {"mkdir", "open", "write", "fsync", "rename"}) {
        const support::TemporaryFolder folder;
        FailingFileCalls failing;
        failing.failures[call] = {.error = EROFS};
        EXPECT_EQ(written("new", folder.path() / "a" / "file", failing), EROFS) << call;
    }
    const support::TemporaryFolder folder;
    folder.write("file", "old");
    EXPECT_EQ(written("new", folder.path() / "file" / "below", FileCalls::ofSystem()), ENOTDIR);
    fs::create_directories(folder.path() / "taken" / "inside");
    EXPECT_EQ(written("new", folder.path() / "taken", FileCalls::ofSystem()), EISDIR);
    EXPECT_EQ(entryCount(folder.path()), 2);
    const fs::path odd(std::string("a\0b", 3));
    EXPECT_EQ(written("new", folder.path() / odd, FileCalls::ofSystem()), EINVAL);
}

TEST(WriteFileDurably, TakesADiskThatCannotSynchronizeFolders) {
    const support::TemporaryFolder folder;
    FailingFileCalls failing;
    failing.failures["fsync"] = {.error = EINVAL, .turn = 2};
    EXPECT_EQ(written("new", folder.path() / "file", failing), std::nullopt);
}

}  // namespace
}  // namespace foundation

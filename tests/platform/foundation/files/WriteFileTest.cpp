#include "platform/foundation/files/FileError.hpp"
#include "platform/foundation/files/ReadFile.hpp"
#include "platform/foundation/files/WriteFile.hpp"
#include "support/TemporaryFolder.hpp"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <cerrno>
#include <set>
#include <string>

namespace foundation {
namespace {

namespace fs = std::filesystem;

std::set<std::string> namesIn(const fs::path& folder) {
    std::set<std::string> names;
    for (const auto& entry : fs::directory_iterator(folder))
        names.insert(entry.path().filename());
    return names;
}

int refusal(const fs::path& path) {
    try {
        writeFileAtomically("new", path);
        return 0;
    } catch (const FileError& error) {
        EXPECT_EQ(error.path(), path);
        return error.code();
    }
}

TEST(WriteFile, MakesAFileAndReplacesIt) {
    const support::TemporaryFolder folder;
    const fs::path path = folder.path() / "file";
    for (const std::size_t size : {3u, 0u, 1u, 4097u, 1'000'000u, 2u}) {
        const std::string bytes(size, 'x');
        writeFileAtomically(bytes, path);
        EXPECT_EQ(readFile(path), bytes);
        EXPECT_EQ(namesIn(folder.path()), std::set<std::string>{"file"});
    }
}

TEST(WriteFile, WritesWhereNoFolderIsNamed) {
    const support::TemporaryFolder folder;
    const fs::path before = fs::current_path();
    fs::current_path(folder.path());
    writeFileAtomically("old", "file");
    writeFileAtomically("new", "file");
    fs::current_path(before);
    EXPECT_EQ(readFile(folder.path() / "file"), "new");
    EXPECT_EQ(namesIn(folder.path()), std::set<std::string>{"file"});
}

TEST(WriteFile, TakesTheLongestNames) {
    const support::TemporaryFolder folder;
    const fs::path path = folder.path() / std::string(255, 'a');
    writeFileAtomically("new", path);
    EXPECT_EQ(readFile(path), "new");
    EXPECT_EQ(refusal(folder.path() / std::string(256, 'a')), ENAMETOOLONG);
    EXPECT_EQ(namesIn(folder.path()).size(), 1u);
}

TEST(WriteFile, KeepsTheModeOfTheFileItReplaces) {
    const support::TemporaryFolder folder;
    for (const mode_t mode : {0600u, 0644u, 0666u, 0400u, 0000u, 0755u}) {
        const fs::path path = folder.write("file", "old");
        ASSERT_EQ(::chmod(path.c_str(), mode), 0);
        writeFileAtomically("new", path);
        struct stat status {};
        ASSERT_EQ(::lstat(path.c_str(), &status), 0);
        EXPECT_EQ(status.st_mode & 07777, mode);
        ASSERT_EQ(::chmod(path.c_str(), 0600), 0);
        EXPECT_EQ(readFile(path), "new");
    }
}

TEST(WriteFile, GivesANewFileTheUsualMode) {
    const support::TemporaryFolder folder;
    for (const mode_t mask : {0022u, 0077u, 0002u}) {
        const fs::path path = folder.path() / std::to_string(mask);
        const mode_t before = ::umask(mask);
        writeFileAtomically("new", path);
        ::umask(before);
        EXPECT_EQ(static_cast<mode_t>(fs::status(path).permissions()), 0666 & ~mask);
    }
}

TEST(WriteFile, ReplacesALinkAndLeavesAloneWhatItNames) {
    const support::TemporaryFolder folder;
    folder.write("named", "old");
    for (const char* target : {"named", "missing", "link"}) {
        fs::create_symlink(target, folder.path() / "link");
        writeFileAtomically("new", folder.path() / "link");
        EXPECT_TRUE(fs::is_regular_file(fs::symlink_status(folder.path() / "link"))) << target;
        EXPECT_EQ(readFile(folder.path() / "link"), "new");
        EXPECT_EQ(readFile(folder.path() / "named"), "old");
        EXPECT_EQ(namesIn(folder.path()), (std::set<std::string>{"link", "named"}));
        fs::remove(folder.path() / "link");
    }
}

TEST(WriteFile, LeavesTheOtherNamesOfTheOldFileAlone) {
    const support::TemporaryFolder folder;
    const fs::path path = folder.write("file", "old");
    fs::create_hard_link(path, folder.path() / "other");
    writeFileAtomically("new", path);
    EXPECT_EQ(readFile(folder.path() / "other"), "old");
}

TEST(WriteFile, ReplacesAPipeWithoutOpeningIt) {
    const support::TemporaryFolder folder;
    ASSERT_EQ(::mkfifo((folder.path() / "file").c_str(), 0600), 0);
    writeFileAtomically("new", folder.path() / "file");
    EXPECT_EQ(readFile(folder.path() / "file"), "new");
}

TEST(WriteFile, WhereNoFileCanStandIsAnError) {
    const support::TemporaryFolder folder;
    folder.write("file", "old");
    fs::create_directory(folder.path() / "folder");
    EXPECT_EQ(refusal(folder.path() / "folder"), EISDIR);
    EXPECT_EQ(refusal(folder.path() / "missing" / "file"), ENOENT);
    EXPECT_EQ(refusal(folder.path() / "file" / "below"), ENOTDIR);
    EXPECT_EQ(refusal(fs::path((folder.path() / "file").string() + '\0' + "x")), EINVAL);
    EXPECT_NE(refusal(""), 0);
    EXPECT_NE(refusal(folder.path() / "folder" / ""), 0);
    EXPECT_EQ(readFile(folder.path() / "file"), "old");
    EXPECT_EQ(namesIn(folder.path()), (std::set<std::string>{"file", "folder"}));
    EXPECT_TRUE(fs::is_empty(folder.path() / "folder"));
}

}  // namespace
}  // namespace foundation

#include "platform/foundation/files/FileCalls.hpp"
#include "platform/foundation/files/ReadFile.hpp"
#include "platform/foundation/files/ReplacementFile.hpp"
#include "platform/foundation/files/WriteFile.hpp"
#include "support/TemporaryFolder.hpp"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <atomic>
#include <csignal>
#include <cstdlib>
#include <iterator>
#include <string>
#include <thread>
#include <vector>

namespace foundation {
namespace {

namespace fs = std::filesystem;

std::ptrdiff_t entryCount(const fs::path& folder) {
    return std::distance(fs::directory_iterator(folder), fs::directory_iterator());
}

/// Contents that tell whether they are whole: one letter, repeated as often as the first number
/// says.
std::string contents(int writer, int turn) {
    const std::size_t count = static_cast<std::size_t>(turn % 7) * 3000 + 1;
    return std::to_string(count) + " " + std::string(count, static_cast<char>('a' + writer));
}

bool isWhole(const std::string& bytes) {
    const std::size_t space = bytes.find(' ');
    return space != std::string::npos && bytes.size() - space - 1 == std::stoull(bytes) &&
           bytes.find_first_not_of(bytes[space + 1], space + 1) == std::string::npos;
}

TEST(WriteFileConcurrency, ReadersSeeWholeFilesAndNothingStaysBehind) {
    const support::TemporaryFolder folder;
    const fs::path path = folder.path() / "file";
    writeFileAtomically(contents(0, 0), path);
    std::atomic<bool> done = false;
    std::atomic<int> torn = 0;
    std::atomic<int> reads = 0;
    std::vector<std::jthread> readers(4);
    for (auto& reader : readers)
        reader = std::jthread([&] {
            for (; !done; ++reads)
                torn += !isWhole(readFile(path));
        });
    std::vector<std::jthread> writers(8);
    for (int writer = 0; writer < 8; ++writer)
        writers[static_cast<std::size_t>(writer)] = std::jthread([&, writer] {
            for (int turn = 0; turn < 200; ++turn)
                writeFileAtomically(contents(writer, turn), path);
        });
    writers.clear();
    done = true;
    readers.clear();
    EXPECT_EQ(torn, 0);
    EXPECT_GT(reads, 0);
    EXPECT_EQ(entryCount(folder.path()), 1);
    writeFileAtomically("last", path);
    EXPECT_EQ(readFile(path), "last");
}

TEST(WriteFileConcurrency, TheFileOfAWriterAtWorkIsNotSweptAway) {
    const support::TemporaryFolder folder;
    ReplacementFile atWork(folder.path() / "file", 0600, FileCalls::ofSystem());
    atWork.write("at work");
    writeFileAtomically("other", folder.path() / "file");
    writeFileAtomically("other", folder.path() / "file");
    EXPECT_EQ(entryCount(folder.path()), 2);
    atWork.takePlace(true);
    EXPECT_EQ(readFile(folder.path() / "file"), "at work");
    EXPECT_EQ(entryCount(folder.path()), 1);
}

TEST(WriteFileConcurrency, AReplacementThatTakesNoPlaceIsGone) {
    const support::TemporaryFolder folder;
    { ReplacementFile(folder.path() / "file", 0600, FileCalls::ofSystem()).write("half"); }
    EXPECT_TRUE(fs::is_empty(folder.path()));
}

TEST(WriteFileConcurrency, OnlyLeftOverReplacementsAreSweptAway) {
    const support::TemporaryFolder folder;
    for (const char* other : {".replacement-", ".replacement-0123456789abcde",
                              ".replacement-0123456789ABCDEF", ".replacement-0123456789abcdef0",
                              "replacement-0123456789abcdef", ".replacement-0123456789abcdeg"})
        folder.write(other, "");
    fs::create_directory(folder.path() / ".replacement-1111111111111111");
    fs::create_symlink("nowhere", folder.path() / ".replacement-2222222222222222");
    folder.write(".replacement-0123456789abcdef", "");
    removeLeftOverReplacements(folder.path(), FileCalls::ofSystem());
    EXPECT_EQ(entryCount(folder.path()), 8);
    EXPECT_FALSE(fs::exists(folder.path() / ".replacement-0123456789abcdef"));
}

/// A process that replaces the file again and again until it is killed.
pid_t startedWriter(const fs::path& path) {
    const pid_t child = ::fork();
    if (child == 0) {
        try {
            for (int turn = 0;; ++turn)
                writeFileAtomically(contents(0, turn), path);
        } catch (...) {
            ::_exit(1);
        }
    }
    return child;
}

TEST(WriteFileConcurrency, AKilledWriterLeavesAWholeFileAndNothingForLong) {
    const support::TemporaryFolder folder;
    const fs::path path = folder.path() / "file";
    writeFileAtomically(contents(0, 0), path);
    const int kills = std::getenv("NURVA_LONG") ? 2000 : 60;
    RecordProperty("kills", kills);
    for (int turn = 0; turn < kills; ++turn) {
        const pid_t child = startedWriter(path);
        ASSERT_GT(child, 0);
        ::usleep(static_cast<useconds_t>(2000 + turn % 60 * 37));
        ::kill(child, SIGKILL);
        int status = 0;
        ASSERT_EQ(::waitpid(child, &status, 0), child);
        EXPECT_TRUE(WIFSIGNALED(status));
        EXPECT_TRUE(isWhole(readFile(path)));
        writeFileAtomically(contents(1, turn), path);
        EXPECT_EQ(readFile(path), contents(1, turn));
        EXPECT_EQ(entryCount(folder.path()), 1);
    }
}

}  // namespace
}  // namespace foundation

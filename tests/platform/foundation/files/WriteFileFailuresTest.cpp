#include "platform/foundation/files/FailingFileCalls.hpp"
#include "platform/foundation/files/FileError.hpp"
#include "platform/foundation/files/ReadFile.hpp"
#include "platform/foundation/files/WriteFile.hpp"
#include "support/TemporaryFolder.hpp"

#include <gtest/gtest.h>

#include <array>
#include <cerrno>
#include <functional>
#include <iterator>
#include <optional>
#include <string>
#include <string_view>

namespace foundation {
namespace {

namespace fs = std::filesystem;

constexpr std::array calls{"getrandom", "open",   "lstat",     "fstat",  "fchmod",  "flock",
                           "write",     "rename", "renameat2", "unlink", "opendir", "readdir"};
constexpr std::array errors{EINTR,       EIO,    ENOSPC, EDQUOT, EMFILE, ENFILE, EACCES,
                            EPERM,       EROFS,  EINVAL, ENOSYS, ENOMEM, ENOENT, EISDIR,
                            EWOULDBLOCK, EEXIST, ENOLCK, EFBIG,  EBUSY};

const std::string before(5000, 'o');
const std::string after(7000, 'n');

std::ptrdiff_t entryCount(const fs::path& folder) {
    return std::distance(fs::directory_iterator(folder), fs::directory_iterator());
}

/// What came of a write: the error, or none.
std::optional<int> written(const fs::path& path, const FileCalls& failing) {
    try {
        writeFileAtomically(after, path, failing);
        return std::nullopt;
    } catch (const FileError& error) {
        EXPECT_EQ(error.path(), path);
        return error.code();
    }
}

/// Every call with every error, each in a folder of its own. A writing that is interrupted for ever
/// would be repeated for ever.
void sweep(const std::function<void(const fs::path&, const char*, int)>& test) {
    for (const char* call : calls) {
        for (const int error : errors) {
            if (call == std::string_view("write") && error == EINTR)
                continue;
            const support::TemporaryFolder folder;
            SCOPED_TRACE(std::string(call) + " failing with " + std::to_string(error));
            test(folder.path() / "file", call, error);
            if (testing::Test::HasFailure())
                return;
        }
    }
}

TEST(WriteFileFailures, LeaveTheOldFileOrTheNewOneAndNothingElse) {
    sweep([](const fs::path& path, const char* call, int error) {
        for (int turn = 0; turn <= 4; ++turn) {
            for (const bool exists : {false, true}) {
                fs::remove(path);
                if (exists)
                    writeFileAtomically(before, path);
                FailingFileCalls failing;
                failing.failures[call] = {.error = error, .turn = turn};
                const auto failure = written(path, failing);
                if (failure && !exists)
                    EXPECT_FALSE(fs::exists(path));
                else
                    EXPECT_EQ(readFile(path), failure ? before : after);
                EXPECT_EQ(entryCount(path.parent_path()), exists || !failure ? 1 : 0)
                    << "turn " << turn << (exists ? ", replacing" : ", new");
            }
        }
    });
}

TEST(WriteFileFailures, AreReportedWithTheErrorOfTheCall) {
    for (const char* call : {"open", "fchmod", "write"}) {
        for (const int error : {EIO, ENOSPC, EMFILE, EACCES, EROFS}) {
            const support::TemporaryFolder folder;
            FailingFileCalls failing;
            failing.failures[call] = {.error = error};
            EXPECT_EQ(written(folder.write("file", "old"), failing), error) << call;
        }
    }
}

TEST(WriteFileFailures, InPairsLeaveNothingThatTheNextWriterDoesNotRemove) {
    sweep([](const fs::path& path, const char* call, int error) {
        if (error != EIO && error != EMFILE && error != ENOENT)
            return;
        for (const char* other : calls) {
            writeFileAtomically(before, path);
            FailingFileCalls failing;
            failing.failures[call] = {.error = error};
            failing.failures[other] = {.error = EIO};
            written(path, failing);
            const std::string found = readFile(path);
            EXPECT_TRUE(found == before || found == after) << other;
            writeFileAtomically(before, path);
            EXPECT_EQ(readFile(path), before);
            EXPECT_EQ(entryCount(path.parent_path()), 1) << other;
        }
    });
}

TEST(WriteFileFailures, OfTheExchangeFallBackToRenaming) {
    const support::TemporaryFolder folder;
    const fs::path path = folder.write("file", before);
    FailingFileCalls healthy;
    EXPECT_EQ(written(path, healthy), std::nullopt);
    EXPECT_EQ(healthy.count("rename"), 0);
    for (const int error : {EINVAL, ENOSYS, EPERM, EOPNOTSUPP}) {
        FailingFileCalls failing;
        failing.failures["renameat2"] = {.error = error};
        EXPECT_EQ(written(path, failing), std::nullopt);
        EXPECT_EQ(failing.count("rename"), 1);
        EXPECT_EQ(readFile(path), after);
    }
}

TEST(WriteFileFailures, ShortAndInterruptedWritesAreContinued) {
    for (const std::size_t bytesAtOnce : {1u, 7u, 4096u}) {
        const support::TemporaryFolder folder;
        FailingFileCalls slow;
        slow.bytesAtOnce = bytesAtOnce;
        slow.failures["write"] = {.error = EINTR, .turn = 2};
        EXPECT_EQ(written(folder.path() / "file", slow), std::nullopt);
        EXPECT_EQ(readFile(folder.path() / "file"), after);
        EXPECT_GT(slow.count("write"), 2);
    }
}

TEST(WriteFileFailures, AWriteThatGoesNowhereIsAnError) {
    const support::TemporaryFolder folder;
    FailingFileCalls slow;
    slow.bytesAtOnce = 0;
    EXPECT_EQ(written(folder.write("file", before), slow), EIO);
    EXPECT_EQ(readFile(folder.path() / "file"), before);
}

TEST(WriteFileFailures, OfEveryKindCloseWhatWasOpened) {
    const std::ptrdiff_t open = entryCount("/proc/self/fd");
    sweep([&](const fs::path& path, const char* call, int error) {
        FailingFileCalls failing;
        failing.failures[call] = {.error = error};
        written(path, failing);
        EXPECT_EQ(entryCount("/proc/self/fd"), open);
    });
}

}  // namespace
}  // namespace foundation

#include "platform/foundation/files/FileDescriptor.hpp"
#include "platform/foundation/files/FileError.hpp"
#include "platform/foundation/files/ReadFile.hpp"
#include "support/TemporaryFolder.hpp"

#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <thread>

namespace foundation {
namespace {

/// Requires that reading fails with the error; a reading that waits or goes on for ever never ends.
void expectError(const std::filesystem::path& path, int code) {
    try {
        readFile(path);
        ADD_FAILURE() << path << " was read";
    } catch (const FileError& error) {
        EXPECT_EQ(error.code(), code) << error.what();
        EXPECT_EQ(error.path(), path);
        EXPECT_NE(std::string(error.what()).find(path.c_str()), std::string::npos);
    }
}

TEST(ReadFile, GivesTheWholeContents) {
    const support::TemporaryFolder folder;
    for (const std::size_t size : {0u, 1u, 4095u, 4096u, 4097u, 1'000'000u}) {
        std::string bytes(size, '\0');
        for (std::size_t i = 0; i < size; ++i)
            bytes[i] = static_cast<char>(i * 7 + i / 251);
        EXPECT_EQ(readFile(folder.write("file", bytes)), bytes) << size;
    }
}

TEST(ReadFile, FollowsALinkToAFile) {
    const support::TemporaryFolder folder;
    folder.write("file", "abc");
    std::filesystem::create_symlink("file", folder.path() / "link");
    EXPECT_EQ(readFile(folder.path() / "link"), "abc");
}

TEST(ReadFile, WhatIsNoFileIsAnErrorAtOnce) {
    const support::TemporaryFolder folder;
    const auto pipe = folder.path() / "pipe";
    ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
    std::filesystem::create_symlink("loop2", folder.path() / "loop1");
    std::filesystem::create_symlink("loop1", folder.path() / "loop2");
    std::filesystem::create_symlink("/dev/zero", folder.path() / "zeros");
    folder.write("file", "abc");

    expectError(folder.path() / "missing", ENOENT);
    expectError(folder.path(), EISDIR);
    expectError(pipe, EINVAL);
    expectError(folder.path() / "loop1", ELOOP);
    expectError(folder.path() / "zeros", EINVAL);
    expectError("/dev/zero", EINVAL);
    expectError("/dev/null", EINVAL);
    expectError(folder.path() / "file" / "below", ENOTDIR);
    expectError(folder.path() / std::string(300, 'a'), ENAMETOOLONG);
    expectError(std::filesystem::path(std::string((folder.path() / "file").string() + '\0' + "x")),
                EINVAL);
    expectError("", ENOENT);
}

TEST(ReadFile, ASocketIsAnError) {
    const support::TemporaryFolder folder;
    const auto path = folder.path() / "socket";
    const FileDescriptor socket(::socket(AF_UNIX, SOCK_STREAM, 0));
    ASSERT_TRUE(socket);
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    ASSERT_LT(path.string().size(), sizeof address.sun_path);
    path.string().copy(address.sun_path, sizeof address.sun_path - 1);
    ASSERT_EQ(::bind(socket.number(), reinterpret_cast<const sockaddr*>(&address), sizeof address),
              0);
    expectError(path, ENXIO);
}

TEST(ReadFile, RefusesAHugeFileWithoutReadingIt) {
    const support::TemporaryFolder folder;
    const auto path = folder.write("sparse", "");
    std::filesystem::resize_file(path, std::uintmax_t{10} << 30);
    expectError(path, EFBIG);
}

TEST(ReadFile, TakesAFileUpToTheLimitAndNoFurther) {
    const support::TemporaryFolder folder;
    const auto path = folder.write("file", "12345");
    EXPECT_EQ(readFile(path, 5), "12345");
    EXPECT_THROW(readFile(path, 4), FileError);
}

TEST(ReadFile, RefusesAFileThatHoldsMoreThanItSaid) {
    // The kernel makes such a file up while it is read; its size is told as 0.
    EXPECT_GT(readFile("/proc/self/status").size(), 100u);
    EXPECT_THROW(readFile("/proc/self/status", 100), FileError);
}

/// Root may read everything, so another user tries it, in a process of its own.
bool deniedToOthers(const std::filesystem::path& path) {
    const pid_t child = ::fork();
    if (child == 0) {
        if (::geteuid() == 0 && ::setuid(65534) != 0)
            ::_exit(2);
        try {
            readFile(path);
            ::_exit(1);
        } catch (const FileError& error) {
            ::_exit(error.code() == EACCES ? 0 : 3);
        }
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

TEST(ReadFile, AFileOnesOwnRightsDenyIsAnError) {
    const support::TemporaryFolder folder;
    std::filesystem::permissions(folder.path(), std::filesystem::perms(0755));
    const auto path = folder.write("secret", "abc");
    EXPECT_EQ(readFile(path), "abc");
    std::filesystem::permissions(path, std::filesystem::perms::none);
    EXPECT_TRUE(deniedToOthers(path));
}

TEST(ReadFile, AFileReplacedMeanwhileIsReadAsOneOrTheOther) {
    const support::TemporaryFolder folder;
    const std::string first(300'000, 'a');
    const std::string second(200'000, 'b');
    const auto path = folder.write("file", first);
    std::atomic<bool> done = false;
    std::thread writer([&] {
        for (int turn = 0; !done; ++turn) {
            const auto next = folder.write("next", turn % 2 == 0 ? second : first);
            std::filesystem::rename(next, path);
        }
    });
    for (int turn = 0; turn < 300; ++turn) {
        const std::string bytes = readFile(path);
        EXPECT_TRUE(bytes == first || bytes == second) << bytes.size();
    }
    done = true;
    writer.join();
}

TEST(FileDescriptor, ClosesWhatItHoldsOnce) {
    int ends[2];
    ASSERT_EQ(::pipe(ends), 0);
    const FileDescriptor reading(ends[0]);
    {
        FileDescriptor writing(ends[1]);
        FileDescriptor moved(std::move(writing));
        EXPECT_EQ(moved.number(), ends[1]);
    }
    char byte = 0;
    EXPECT_EQ(::read(reading.number(), &byte, 1), 0);
    EXPECT_FALSE(FileDescriptor());
}

}  // namespace
}  // namespace foundation

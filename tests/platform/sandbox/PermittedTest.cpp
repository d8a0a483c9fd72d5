#include "platform/foundation/files/ReadFile.hpp"
#include "platform/foundation/files/WriteFile.hpp"
#include "platform/sandbox/Child.hpp"
#include "platform/sandbox/Confinement.hpp"
#include "platform/sandbox/Grounds.hpp"
#include "platform/sandbox/Sockets.hpp"

#include <gtest/gtest.h>
#include <sys/epoll.h>
#include <sys/eventfd.h>
#include <sys/mman.h>
#include <sys/timerfd.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <future>
#include <iterator>
#include <thread>
#include <vector>

namespace sandbox {
namespace {

namespace fs = std::filesystem;

/// What a confined process can do, as root and as an ordinary user.
class Permitted : public testing::TestWithParam<User> {
  protected:
    void SetUp() override {
        if (!canBe(GetParam()))
            GTEST_SKIP() << "The tests run as an ordinary user.";
    }

    int confined(const std::function<int()>& action) const {
        return outcomeInChild(
            [&] {
                Permissions permissions = grounds.permissions();
                if (!NURVA_SANITIZED)
                    permissions.memory = std::size_t{256} << 20;
                confine(permissions);
                return action();
            },
            GetParam());
    }

    bool holds(const std::function<bool()>& action) const {
        return confined([&] { return action() ? 0 : 1; }) == 0;
    }

    Grounds grounds;
};

TEST_P(Permitted, ReadsTheBundle) {
    EXPECT_TRUE(holds([&] { return foundation::readFile(grounds.bundle() / "file") == "text"; }));
    EXPECT_TRUE(holds([&] {
        const fs::directory_iterator entries(grounds.bundle());
        return std::distance(begin(entries), end(entries)) == 2;
    }));
}

TEST_P(Permitted, ReplacesFilesOfTheContainer) {
    for (const char* name : {"file", "new", "folder/new"}) {
        EXPECT_EQ(confined([&] {
                      for (const char* bytes : {"first", "second"})
                          foundation::writeFileAtomically(bytes, grounds.container() / name);
                      return 0;
                  }),
                  0);
        EXPECT_EQ(foundation::readFile(grounds.container() / name), "second");
    }
}

TEST_P(Permitted, MakesAndRemovesFoldersOfTheContainer) {
    EXPECT_TRUE(holds([&] {
        const fs::path folder = grounds.container() / "new" / "newer";
        fs::create_directories(folder);
        foundation::writeFileAtomically("text", folder / "file");
        fs::rename(folder / "file", grounds.container() / "file");
        return fs::remove_all(grounds.container() / "new") == 2;
    }));
}

TEST_P(Permitted, LooksAtFilesByName) {
    EXPECT_TRUE(holds([] { return fs::exists("/etc/passwd") && !fs::exists("/missing"); }));
    EXPECT_TRUE(
        holds([] { return fs::read_symlink("/proc/self/exe").filename() == "sandbox_test"; }));
}

TEST_P(Permitted, RunsThreads) {
    EXPECT_TRUE(holds([] {
        std::atomic<int> sum = 0;
        {
            std::vector<std::jthread> threads;
            for (int number = 1; number <= 8; ++number)
                threads.emplace_back([&, number] { sum += number; });
        }
        auto answer = std::async(std::launch::async, [] { return 6; });
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
        return sum == 36 && answer.get() == 6;
    }));
}

TEST_P(Permitted, ThrowsAndCatches) {
    EXPECT_TRUE(holds([&] {
        try {
            foundation::readFile(grounds.home() / "file");
        } catch (const std::exception&) {
            return true;
        }
        return false;
    }));
}

TEST_P(Permitted, StopsItselfBySignal) {
    EXPECT_EQ(confined([]() -> int {
                  std::signal(SIGABRT, SIG_DFL);
                  std::abort();
              }),
              signalled + SIGABRT);
}

TEST_P(Permitted, WaitsForEventsAndTimers) {
    EXPECT_TRUE(holds([] {
        const foundation::FileDescriptor set(::epoll_create1(EPOLL_CLOEXEC));
        const foundation::FileDescriptor event(::eventfd(0, EFD_CLOEXEC));
        const foundation::FileDescriptor timer(::timerfd_create(CLOCK_MONOTONIC, TFD_CLOEXEC));
        const itimerspec soon{.it_interval = {}, .it_value = {.tv_sec = 0, .tv_nsec = 1}};
        epoll_event ready{.events = EPOLLIN, .data = {}};
        return ::epoll_ctl(set.number(), EPOLL_CTL_ADD, event.number(), &ready) == 0 &&
               ::epoll_ctl(set.number(), EPOLL_CTL_ADD, timer.number(), &ready) == 0 &&
               ::timerfd_settime(timer.number(), 0, &soon, nullptr) == 0 &&
               ::epoll_wait(set.number(), &ready, 1, 30'000) == 1;
    }));
}

TEST_P(Permitted, DrawsIntoMemoryThatItsPeerSends) {
    constexpr std::size_t size = 1 << 20;
    const SocketPair sockets;
    const foundation::FileDescriptor file(::memfd_create("pixels", MFD_CLOEXEC));
    ASSERT_EQ(::ftruncate(file.number(), size), 0);
    sendDescriptor(sockets.ours.number(), file.number());
    EXPECT_EQ(confined([&] {
                  const auto received = receiveDescriptor(sockets.theirs.number());
                  void* const pixels = ::mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_SHARED,
                                              received.number(), 0);
                  if (pixels == MAP_FAILED)
                      return errno;
                  static_cast<char*>(pixels)[size - 1] = 'x';
                  sendDescriptor(sockets.theirs.number(), received.number());
                  return 0;
              }),
              0);
    char last = 0;
    EXPECT_EQ(::pread(receiveDescriptor(sockets.ours.number()).number(), &last, 1, size - 1), 1);
    EXPECT_EQ(last, 'x');
}

INSTANTIATE_TEST_SUITE_P(Users,
                         Permitted,
                         testing::Values(User::ofTests, User::ordinary),
                         [](const auto& user) {
                             return user.param == User::ordinary ? "Ordinary" : "OfTests";
                         });

}  // namespace
}  // namespace sandbox

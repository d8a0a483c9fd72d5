#include "platform/sandbox/Child.hpp"
#include "platform/sandbox/Permissions.hpp"
#include "platform/sandbox/ProcessLimits.hpp"

#include <gtest/gtest.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <new>
#include <thread>
#include <vector>

namespace sandbox {
namespace {

constexpr std::size_t megabyte = 1 << 20;

std::vector<std::size_t> limits() {
    std::vector<std::size_t> values;
    for (const auto resource : {RLIMIT_CORE, RLIMIT_DATA}) {
        rlimit limit{};
        ::getrlimit(resource, &limit);
        values.insert(values.end(), {limit.rlim_cur, limit.rlim_max});
    }
    return values;
}

/// Whether that much memory can be had, and be used.
bool canTake(std::size_t size) {
    try {
        return std::vector<char>(size, 'x').back() == 'x';
    } catch (const std::bad_alloc&) {
        return false;
    }
}

TEST(ProcessLimits, EndPrivilegesAndDumps) {
    EXPECT_EQ(::prctl(PR_GET_NO_NEW_PRIVS, 0, 0, 0, 0), 0);
    EXPECT_EQ(::prctl(PR_GET_DUMPABLE, 0, 0, 0, 0), 1);
    EXPECT_EQ(outcomeInChild([] {
                  limitProcess(Permissions::unlimited);
                  return ::prctl(PR_GET_NO_NEW_PRIVS, 0, 0, 0, 0) * 2 +
                         ::prctl(PR_GET_DUMPABLE, 0, 0, 0, 0);
              }),
              2);
}

TEST(ProcessLimits, AreSetForEver) {
    constexpr std::size_t memory = std::size_t{1} << 45;
    EXPECT_EQ(outcomeInChild([=] {
                  limitProcess(memory);
                  return limits() == std::vector<std::size_t>{0, 0, memory, memory} ? 0 : 1;
              }),
              0);
}

TEST(ProcessLimits, NeverRaiseALowerOne) {
    for (const User user : {User::ofTests, User::ordinary}) {
        if (!canBe(user))
            continue;
        EXPECT_EQ(outcomeInChild(
                      [] {
                          limitProcess(std::size_t{1} << 44);
                          const auto before = limits();
                          limitProcess(Permissions::unlimited);
                          return limits() == before ? 0 : 1;
                      },
                      user),
                  0);
    }
}

TEST(ProcessLimits, LetMemoryRunOutAsAnException) {
    if (NURVA_SANITIZED)
        GTEST_SKIP() << "The shadow of a sanitizer is far beyond any limit.";
    EXPECT_EQ(outcomeInChild([] {
                  limitProcess(64 * megabyte);
                  const bool isBounded = canTake(16 * megabyte) && !canTake(80 * megabyte);
                  return isBounded && canTake(16 * megabyte) ? 0 : 1;
              }),
              0);
}

TEST(ProcessLimits, HoldForThreadsToo) {
    if (NURVA_SANITIZED)
        GTEST_SKIP() << "The shadow of a sanitizer is far beyond any limit.";
    EXPECT_EQ(
        outcomeInChild([] {
            limitProcess(64 * megabyte);
            bool isBounded = false;
            std::jthread([&] { isBounded = canTake(16 * megabyte) && !canTake(80 * megabyte); });
            return isBounded ? 0 : 1;
        }),
        0);
}

TEST(ProcessLimits, DoNotCountMemoryThatIsShared) {
    EXPECT_EQ(outcomeInChild([] {
                  const int file = ::memfd_create("shared", 0);
                  if (::ftruncate(file, 80 * megabyte) != 0)
                      return errno;
                  limitProcess(NURVA_SANITIZED ? Permissions::unlimited : 64 * megabyte);
                  void* const memory =
                      ::mmap(nullptr, 80 * megabyte, PROT_READ | PROT_WRITE, MAP_SHARED, file, 0);
                  return memory == MAP_FAILED ? errno : 0;
              }),
              0);
}

}  // namespace
}  // namespace sandbox

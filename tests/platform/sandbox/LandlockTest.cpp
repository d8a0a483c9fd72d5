#include "platform/foundation/files/WriteFile.hpp"
#include "platform/sandbox/Child.hpp"
#include "platform/sandbox/Landlock.hpp"
#include "platform/sandbox/LandlockProbes.hpp"
#include "platform/sandbox/ProcessLimits.hpp"
#include "platform/sandbox/Sockets.hpp"

#include <gtest/gtest.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>

namespace sandbox {
namespace {

/// Landlock alone, in each of its versions; 0 is none.
class Landlock : public testing::TestWithParam<int> {
  protected:
    void SetUp() override {
        if (GetParam() > landlockABIOfKernel())
            GTEST_SKIP() << "The kernel has no such version.";
    }

    int restricted(const std::function<int(const Grounds&)>& action) const {
        const Grounds grounds;
        return outcomeInChild([&] {
            Permissions permissions = grounds.permissions();
            permissions.readable.push_back(device);
            limitProcess(Permissions::unlimited);
            if (GetParam() > 0)
                restrictAccess(permissions, GetParam());
            return action(grounds);
        });
    }
};

TEST_P(Landlock, RefusesWhatItsVersionKnows) {
    const auto listener = listenLocal(abstractName(::getpid()));
    for (const LandlockProbe& probe : landlockProbes())
        EXPECT_EQ(restricted(probe.attempt),
                  GetParam() < probe.firstVersion ? probe.before : probe.refusal)
            << probe.name;
}

TEST_P(Landlock, LetsFilesOfTheContainerBeReplaced) {
    for (const char* name : {"file", "new", "folder/new"})
        EXPECT_EQ(restricted([&](const Grounds& grounds) {
                      foundation::writeFileAtomically("text", grounds.container() / name);
                      return 0;
                  }),
                  0)
            << name;
}

TEST_P(Landlock, LetsFilesMoveBetweenFoldersFromTheSecondVersionOn) {
    EXPECT_EQ(restricted([](const Grounds& grounds) {
                  const std::string from = grounds.container() / "file";
                  const std::string to = grounds.container() / "folder" / "file";
                  return std::rename(from.c_str(), to.c_str()) == 0 ? 0 : errno;
              }),
              GetParam() == 1 ? EXDEV : 0);
}

TEST_P(Landlock, LeavesOutWhatIsMissing) {
    const Grounds grounds;
    const Permissions permissions{.readable = {"/missing", ""}, .writable = {"/missing/too"}};
    EXPECT_EQ(outcomeInChild([&] {
                  limitProcess(Permissions::unlimited);
                  if (GetParam() > 0)
                      restrictAccess(permissions, GetParam());
                  return ::access("/missing", F_OK) == 0 ? 0 : errno;
              }),
              ENOENT);
}

INSTANTIATE_TEST_SUITE_P(Versions, Landlock, testing::Range(0, 8));

}  // namespace
}  // namespace sandbox

#include "platform/sandbox/Child.hpp"
#include "platform/sandbox/Confinement.hpp"

#include <gtest/gtest.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cerrno>
#include <thread>

namespace sandbox {
namespace {

TEST(Confinement, IsWhatWasAvailable) {
    const Confinement offered = available();
    EXPECT_EQ(outcomeInChild([&] { return confine({}) == offered ? 0 : 1; }), 0);
    EXPECT_EQ(available(), offered);
}

TEST(Confinement, IsAvailableNoMoreToOneThatIsConfined) {
    EXPECT_EQ(outcomeInChild([] {
                  confine({});
                  return available() == Confinement{} ? 0 : 1;
              }),
              0);
}

TEST(Confinement, IsCompleteWhereNothingIsLeftOut) {
    for (const int abi : {0, 1, 2, 3, 4, 5, 6, 7, 100}) {
        EXPECT_EQ((Confinement{.landlockABI = abi, .callsAreFiltered = true}.isComplete()),
                  abi >= 6)
            << abi;
        EXPECT_FALSE((Confinement{.landlockABI = abi, .callsAreFiltered = false}.isComplete()));
    }
}

TEST(Confinement, HoldsInEveryThread) {
    EXPECT_EQ(
        outcomeInChild([] {
            confine({});
            int error = 0;
            std::jthread([&] {
                std::jthread([&] { error = ::socket(AF_UNIX, SOCK_STREAM, 0) < 0 ? errno : 0; });
            });
            return error;
        }),
        EPERM);
}

TEST(Confinement, IsOfOneProcessOnly) {
    outcomeInChild([] {
        confine({});
        return 0;
    });
    const int socket = ::socket(AF_UNIX, SOCK_STREAM, 0);
    EXPECT_GE(socket, 0);
    ::close(socket);
}

}  // namespace
}  // namespace sandbox

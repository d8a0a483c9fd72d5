#include "platform/foundation/notifications/NotificationObserver.hpp"
#include "platform/foundation/notifications/SessionBusNotificationCenter.hpp"
#include "support/PrivateSessionBus.hpp"

#include <gtest/gtest.h>
#include <poll.h>

#include <chrono>
#include <system_error>

namespace foundation {
namespace {

using namespace std::chrono_literals;

/// Waits and hears until something came or the time is up. False once the connection is broken.
bool listen(NotificationObserver& observer, std::chrono::milliseconds time) {
    if (!observer.process())
        return false;
    pollfd ready{.fd = observer.descriptor(), .events = observer.events(), .revents = 0};
    ::poll(&ready, 1, static_cast<int>(time.count()));
    return observer.process();
}

TEST(NotificationObserver, HearsEveryNotificationOfItsNameAndNoOther) {
    const support::PrivateSessionBus bus;
    const SessionBusNotificationCenter center;
    int calls = 0;
    NotificationObserver observer("org.nurva.Nurva.peticionDeWidget", [&] { ++calls; });
    for (const char* name : {"org.nurva.Nurva.otra", "org.nurva.Otra.peticionDeWidget",
                             "org.nurva.Nurva.peticionDeWidget", "org.nurva.Nurva.peticiondewidget",
                             "org.nurva.Nurva.peticionDeWidget"})
        center.post(name);
    for (int turn = 0; turn < 50 && calls < 2; ++turn)
        ASSERT_TRUE(listen(observer, 100ms));
    EXPECT_EQ(calls, 2);
    ASSERT_TRUE(listen(observer, 50ms));
    EXPECT_EQ(calls, 2);
}

TEST(NotificationObserver, SaysWhenTheConnectionIsBroken) {
    support::PrivateSessionBus bus;
    NotificationObserver observer("a.b.c", [] {});
    EXPECT_TRUE(listen(observer, 0ms));
    bus.end();
    bool isConnected = true;
    for (int turn = 0; turn < 50 && isConnected; ++turn)
        isConnected = listen(observer, 100ms);
    EXPECT_FALSE(isConnected);
}

TEST(NotificationObserver, CannotHearWithoutABus) {
    support::PrivateSessionBus bus;
    EXPECT_THROW(NotificationObserver("a.b", [] {}), std::system_error);
    bus.hang();
    EXPECT_THROW(NotificationObserver(
                     "a.b.c", [] {}, 50ms),
                 std::system_error);
    bus.goOn();
    bus.end();
    EXPECT_THROW(NotificationObserver("a.b.c", [] {}), std::system_error);
}

}  // namespace
}  // namespace foundation

#include "platform/foundation/notifications/SessionBusNotificationCenter.hpp"
#include "support/ChildProcess.hpp"
#include "support/PrivateSessionBus.hpp"

#include <gtest/gtest.h>
#include <sys/resource.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <string>
#include <thread>
#include <vector>

namespace foundation {
namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

const std::string heard = "/ org.nurva.Nurva peticionDeWidget none";
constexpr std::string_view name = "org.nurva.Nurva.peticionDeWidget";

struct Listener : support::ChildProcess {
    Listener() : ChildProcess({NURVA_NOTIFICATION_LISTENER}) { EXPECT_EQ(line(), "ready"); }
};

/// Far below the time after which a bus that does not answer gives up by itself, and far above what
/// a busy machine takes.
constexpr Clock::duration inTime = 10s;

Clock::duration durationOf(const auto& action) {
    const auto start = Clock::now();
    action();
    return Clock::now() - start;
}

/// What this thread has used of the processor, in its own code and in the kernel's.
std::chrono::microseconds timeOfProcessor() {
    rusage usage{};
    ::getrusage(RUSAGE_THREAD, &usage);
    const auto micro = [](const timeval& time) {
        return std::chrono::seconds(time.tv_sec) + std::chrono::microseconds(time.tv_usec);
    };
    return micro(usage.ru_utime) + micro(usage.ru_stime);
}

TEST(SessionBusNotificationCenter, SendsASignalWithoutArgumentsToOtherPrograms) {
    const support::PrivateSessionBus bus;
    Listener listener;
    const SessionBusNotificationCenter center;
    center.post(name);
    EXPECT_EQ(listener.line(), heard);
    center.post("a.b.c");
    EXPECT_EQ(listener.line(), "/ a.b c none");
}

TEST(SessionBusNotificationCenter, SendsEachPostAnew) {
    const support::PrivateSessionBus bus;
    Listener listener;
    const SessionBusNotificationCenter center;
    for (int post = 0; post < 100; ++post)
        center.post(name);
    center.post("a.b.last");
    for (int post = 0; post < 100; ++post)
        ASSERT_EQ(listener.line(), heard) << post;
    EXPECT_EQ(listener.line(), "/ a.b last none");
}

TEST(SessionBusNotificationCenter, TheBusHasItWhenPostReturns) {
    const support::PrivateSessionBus bus;
    Listener listener;
    SessionBusNotificationCenter().post(name);
    EXPECT_EQ(listener.line(), heard);
}

TEST(SessionBusNotificationCenter, WhatIsNoNameOfTheBusIsNotSent) {
    const support::PrivateSessionBus bus;
    Listener listener;
    const SessionBusNotificationCenter center;
    for (const std::string_view none : {"", "nodot", "one.dot", ".", "a.b.", ".a.b", "a.b.c d",
                                        "a b.c.d", "a..b", "1.b.c", "a.b.é", "a.b.c\n"})
        center.post(none);
    center.post("a.b." + std::string(300, 'c'));
    center.post(name);
    EXPECT_EQ(listener.line(), heard);
}

TEST(SessionBusNotificationCenter, WithoutABusNothingHappens) {
    const support::TemporaryFolder folder;
    for (const std::string& address :
         {"unix:path=" + (folder.path() / "bus").string(), std::string("nonsense"),
          std::string("unix:path=/dev/null"), std::string("")}) {
        ::setenv("DBUS_SESSION_BUS_ADDRESS", address.c_str(), 1);
        const SessionBusNotificationCenter center;
        EXPECT_LT(durationOf([&] { center.post(name); }), inTime) << address;
    }
    ::unsetenv("DBUS_SESSION_BUS_ADDRESS");
}

TEST(SessionBusNotificationCenter, ABusThatStartsLaterIsFound) {
    support::PrivateSessionBus bus;
    bus.end();
    const SessionBusNotificationCenter center;
    center.post(name);
    bus.start();
    Listener listener;
    center.post(name);
    EXPECT_EQ(listener.line(), heard);
}

TEST(SessionBusNotificationCenter, ABrokenConnectionIsOpenedAnew) {
    support::PrivateSessionBus bus;
    const SessionBusNotificationCenter center;
    center.post(name);
    bus.end();
    bus.start();
    Listener listener;
    center.post(name);
    EXPECT_EQ(listener.line(), heard);
}

TEST(SessionBusNotificationCenter, ABusThatDoesNotAnswerIsLeftAloneInTime) {
    support::PrivateSessionBus bus;
    bus.hang();
    const SessionBusNotificationCenter center(400ms);
    EXPECT_LT(durationOf([&] { center.post(name); }), inTime);
    const auto before = timeOfProcessor();
    EXPECT_GE(durationOf([&] { center.post(name); }), 400ms);
    EXPECT_LT(timeOfProcessor() - before, 200ms) << "it is to wait, not to ask again and again";
    bus.goOn();
    Listener listener;
    const SessionBusNotificationCenter patient;
    patient.post(name);
    EXPECT_EQ(listener.line(), heard);
}

TEST(SessionBusNotificationCenter, ABusThatHangsWhileConnectedNeverHoldsThePosterUp) {
    support::PrivateSessionBus bus;
    Listener listener;
    const SessionBusNotificationCenter center(50ms);
    center.post(name);
    EXPECT_EQ(listener.line(), heard);
    bus.hang();
    // Until the connection's buffers are full.
    Clock::duration longest{};
    for (int post = 0; post < 200'000 && longest < 50ms; ++post)
        longest = std::max(longest, durationOf([&] { center.post(name); }));
    EXPECT_GE(longest, 50ms);
    EXPECT_LT(longest, inTime);
    bus.goOn();
}

TEST(SessionBusNotificationCenter, ManyThreadsSendAtOnce) {
    const support::PrivateSessionBus bus;
    Listener listener;
    const SessionBusNotificationCenter center(10s);
    std::vector<std::jthread> threads(8);
    for (auto& thread : threads)
        thread = std::jthread([&] {
            for (int post = 0; post < 50; ++post)
                center.post(name);
        });
    threads.clear();
    for (int post = 0; post < 8 * 50; ++post)
        ASSERT_EQ(listener.line(), heard) << post;
}

}  // namespace
}  // namespace foundation

#include "platform/foundation/SystemClock.hpp"
#include "support/Patience.hpp"
#include "widgethost/MainLoop.hpp"

#include <glib.h>
#include <gtest/gtest.h>
#include <sys/eventfd.h>

namespace widgethost {
namespace {

using namespace std::chrono_literals;

/// Lets the context work until something is called.
void work(const int& calls) {
    const int before = calls;
    bool isOver = false;
    const Source end = after(support::patience, [&] { isOver = true; });
    while (calls == before && !isOver)
        g_main_context_iteration(nullptr, TRUE);
}

TEST(MainLoop, CallsOnceAfterAWhile) {
    int calls = 0;
    const auto start = std::chrono::steady_clock::now();
    const Source source = after(20ms, [&] { ++calls; });
    work(calls);
    EXPECT_EQ(calls, 1);
    EXPECT_GE(std::chrono::steady_clock::now() - start, 19ms);
}

TEST(MainLoop, CallsNobodyWhoIsGone) {
    int calls = 0;
    Source source = after(1ms, [&] { ++calls; });
    source.reset();
    int later = 0;
    const Source end = after(20ms, [&] { ++later; });
    work(later);
    EXPECT_EQ(later, 1);
    EXPECT_EQ(calls, 0);
}

TEST(MainLoop, MayReplaceASourceFromWithinItsCall) {
    int calls = 0;
    Source source;
    source = after(0ms, [&] {
        ++calls;
        source = after(0ms, [&] { ++calls; });
    });
    work(calls);
    work(calls);
    EXPECT_EQ(calls, 2);
}

TEST(MainLoop, CallsWhileThereIsSomethingToRead) {
    const foundation::FileDescriptor event(::eventfd(1, EFD_NONBLOCK | EFD_CLOEXEC));
    int calls = 0;
    const Source source = whenReadable(event.number(), [&] {
        ++calls;
        eventfd_t count;
        ::eventfd_read(event.number(), &count);
    });
    work(calls);
    EXPECT_EQ(calls, 1);
    EXPECT_FALSE(g_main_context_pending(nullptr));
}

struct WallClock : testing::Test {
    foundation::Date now() const { return clock.now(); }

    foundation::SystemClock clock;
    int calls = 0;
    WallClockTimer timer{[this] { ++calls; }};
};

TEST_F(WallClock, CallsAtTheInstantAndNotBefore) {
    const foundation::Date instant = now().addingTimeInterval(0.03);
    timer.set(instant);
    work(calls);
    EXPECT_EQ(calls, 1);
    EXPECT_GE(now(), instant);
}

TEST_F(WallClock, CallsAtOnceForAnInstantThatIsOver) {
    timer.set(foundation::Date{-1e12});
    work(calls);
    EXPECT_EQ(calls, 1);
}

TEST_F(WallClock, KeepsQuietForOneThatIsFarAwayOrNone) {
    for (const auto& instant :
         {std::optional(foundation::Date{1e300}), std::optional<foundation::Date>()}) {
        timer.set(now().addingTimeInterval(0.01));
        timer.set(instant);
        int later = 0;
        WallClockTimer end([&] { ++later; });
        end.set(now().addingTimeInterval(0.03));
        work(later);
        EXPECT_EQ(later, 1);
    }
    EXPECT_EQ(calls, 0);
}

}  // namespace
}  // namespace widgethost

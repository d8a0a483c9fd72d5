// What happens when there is no memory left, at every place where some is asked for.

#include "platform/foundation/notifications/NotificationObserver.hpp"
#include "platform/foundation/notifications/SessionBusNotificationCenter.hpp"
#include "robustness/FailingAllocation.hpp"
#include "robustness/KeptPlacement.hpp"
#include "robustness/Workplace.hpp"
#include "support/PrivateSessionBus.hpp"

#include <gtest/gtest.h>
#include <poll.h>

#include <new>
#include <optional>
#include <string>

namespace {

using nurva::GrupoDeApps::Peticion;

/// Performs the work with its first allocation failing, then with its second, and so on until it
/// asks for no more; looks each time at what was left behind. Answers how many allocations it
/// takes.
template <class Work, class Look>
int withEachAllocationFailing(Work work, Look look) {
    for (int turn = 1; !testing::Test::HasFailure(); ++turn) {
        bool hasHappened = false;
        bool isOutOfMemory = false;
        {
            const FailingAllocation failing(turn);
            try {
                work();
            } catch (const std::bad_alloc&) {
                isOutOfMemory = true;
            }
            hasHappened = failing.hasHappened();
        }
        SCOPED_TRACE("allocation " + std::to_string(turn));
        look(isOutOfMemory);
        if (!hasHappened)
            return turn - 1;
    }
    return 0;
}

struct AllocationFailures : testing::Test {
    void TearDown() override {
        EXPECT_EQ(entryCount("/proc/self/fd"), open_) << "something stayed open";
        EXPECT_GT(allocations, 0);
        RecordProperty("allocations", allocations);
    }

    Workplace workplace;
    int allocations = 0;

  private:
    std::ptrdiff_t open_ = entryCount("/proc/self/fd");
};

TEST_F(AllocationFailures, OfLoadingGiveNoSnapshotOrTheWholeOne) {
    std::optional<nurva::EstadoParaWidgets> loaded;
    allocations = withEachAllocationFailing(
        [&] {
            loaded.reset();
            loaded = workplace.loaded();
        },
        [&](bool) {
            EXPECT_TRUE(!loaded || loaded == Workplace::snapshot());
            EXPECT_EQ(workplace.loaded(), Workplace::snapshot()) << "the next time";
        });
}

TEST_F(AllocationFailures, OfSendingLeaveTheRequestBeforeOrTheNewOneAndNothingElse) {
    const auto before = Peticion::ponerPerfil("the one before, which is not short either");
    const auto after = Peticion::silenciar("an application with a long name", true);
    workplace.send(before);
    allocations = withEachAllocationFailing(
        [&] { workplace.send(after); },
        [&](bool) {
            EXPECT_EQ(entryCount(workplace.container()), 2);
            const Peticion standing = workplace.standingRequest();
            EXPECT_TRUE(standing == before || standing == after);
            workplace.send(before);
            EXPECT_EQ(workplace.standingRequest(), before) << "the next time";
        });
}

TEST_F(AllocationFailures, OfANotificationAreHeardByNobody) {
    const support::PrivateSessionBus bus;
    int heard = 0;
    foundation::NotificationObserver observer("org.ejemplo.algo", [&] { ++heard; });
    const std::ptrdiff_t open = entryCount("/proc/self/fd");
    allocations = withEachAllocationFailing(
        [] { foundation::SessionBusNotificationCenter().post("org.ejemplo.algo"); },
        [&](bool) { EXPECT_EQ(entryCount("/proc/self/fd"), open); });
    while (observer.process() && heard == 0) {
        pollfd ready{observer.descriptor(), observer.events(), 0};
        ASSERT_EQ(::poll(&ready, 1, 10'000), 1) << "the last one, with memory enough, is heard";
    }
    EXPECT_GT(heard, 0);
}

TEST_F(AllocationFailures, OfPlacingLeaveThePlacementBeforeOrTheNewOneAndNothingElse) {
    KeptPlacement kept;
    kept.file.save(kept.before);
    int reportsBefore = kept.reports;
    allocations = withEachAllocationFailing(
        [&] { kept.file.save(kept.after); },
        [&](bool isOutOfMemory) {
            const bool isReported = kept.reports != reportsBefore;
            EXPECT_EQ(entryCount(kept.folder), 1);
            const auto placed = kept.file.load();
            EXPECT_TRUE(placed == kept.before || placed == kept.after);
            EXPECT_TRUE(placed == kept.after || isOutOfMemory || isReported);
            kept.file.save(kept.before);
            EXPECT_EQ(kept.file.load(), kept.before) << "the next time";
            reportsBefore = kept.reports;
        });
}

TEST_F(AllocationFailures, OfLookingForThePlacementLoseNothing) {
    KeptPlacement kept;
    kept.file.save(kept.before);
    std::optional<widgethost::Placement> placed;
    allocations = withEachAllocationFailing(
        [&] {
            placed.reset();
            placed = kept.file.load();
        },
        [&](bool isOutOfMemory) {
            EXPECT_TRUE(placed == kept.before || isOutOfMemory);
            EXPECT_EQ(kept.file.load(), kept.before) << "the next time";
        });
    EXPECT_EQ(kept.reports, 0);
}

}  // namespace

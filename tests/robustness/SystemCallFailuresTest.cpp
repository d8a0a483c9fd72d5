// What happens when the system refuses, at every call that is made of it.

#include "platform/foundation/notifications/NotificationObserver.hpp"
#include "platform/foundation/notifications/SessionBusNotificationCenter.hpp"
#include "robustness/KeptPlacement.hpp"
#include "robustness/SystemCallFailure.hpp"
#include "robustness/Workplace.hpp"
#include "support/PrivateSessionBus.hpp"

#include <gtest/gtest.h>
#include <poll.h>

#include <cerrno>
#include <chrono>
#include <cstdlib>
#include <new>
#include <string>
#include <vector>

namespace {

using nurva::GrupoDeApps::Peticion;

/// What a process answers that had no memory left.
constexpr int outOfMemory = 99;

std::vector<int> errors() {
    std::vector<int> errors{EINTR, EIO, ENOMEM};
    if (std::getenv("NURVA_LONG"))
        errors.insert(errors.end(), {ENOSPC, EMFILE, EACCES, EPERM, ENOENT, EAGAIN, EINVAL, EEXIST,
                                     ENOSYS, EROFS, EDQUOT, ENOTDIR, EISDIR, ECONNRESET});
    return errors;
}

struct SystemCallFailures : testing::Test {
    void SetUp() override {
        if (NURVA_SANITIZED)
            GTEST_SKIP() << "a sanitizer makes calls of its own, and gives up without them";
        if (!canAnswerSystemCalls())
            GTEST_SKIP() << "no process may answer the system calls of another here";
    }

    /// Performs the work with its first call failing, then with its second, and so on, each with
    /// every error, once and for good. Looks each time at what was left behind, given how it ended.
    template <class Work, class Look>
    void withEachCallFailing(Work work, Look look) {
        const auto guarded = [&] {
            try {
                return work();
            } catch (const std::bad_alloc&) {
                return outOfMemory;
            }
        };
        const Ending healthy = performedWith({}, guarded);
        EXPECT_EQ(healthy.status, 0);
        look(healthy.status, {});
        int failures = 0;
        for (int turn = 1; turn <= static_cast<int>(healthy.calls.size()); ++turn)
            for (const int error : errors())
                for (const bool forGood : {false, true}) {
                    // A call that is interrupted for ever is made for ever.
                    if (forGood && error == EINTR)
                        continue;
                    const SystemCallFailure failure{turn, error, forGood};
                    const Ending ending = performedWith(failure, guarded);
                    ++failures;
                    SCOPED_TRACE(testing::Message() << failure << ": " << ending);
                    EXPECT_TRUE(ending.status < 3 ||
                                (failure.isOfMemory(ending) && ending.status == outOfMemory));
                    look(ending.status, failure);
                    if (HasFailure())
                        return;
                }
        EXPECT_GT(failures, 0);
        RecordProperty("calls", static_cast<int>(healthy.calls.size()));
        RecordProperty("failures", failures);
    }

    Workplace workplace;
};

TEST_F(SystemCallFailures, OfLoadingGiveNoSnapshotOrTheWholeOne) {
    enum { whole, none, other };
    withEachCallFailing(
        [&]() -> int {
            const auto loaded = workplace.loaded();
            return !loaded ? none : *loaded == Workplace::snapshot() ? whole : other;
        },
        [](int status, const SystemCallFailure&) { EXPECT_NE(status, other); });
    EXPECT_EQ(workplace.loaded(), Workplace::snapshot());
}

TEST_F(SystemCallFailures, OfSendingLeaveTheRequestBeforeOrTheNewOneAndNothingElse) {
    const auto before = Peticion::ponerPerfil("the one before, which is not short either");
    const auto after = Peticion::silenciar("an application with a long name", true);
    workplace.send(before);
    withEachCallFailing(
        [&] {
            const int posts = workplace.posts();
            workplace.send(after);
            return workplace.posts() == posts + 1 ? 0 : 1;
        },
        [&](int status, const SystemCallFailure& failure) {
            const Peticion standing = workplace.standingRequest();
            EXPECT_TRUE(standing == before || (standing == after && status != 1));
            EXPECT_TRUE(failure.forGood || entryCount(workplace.container()) == 2);
            workplace.send(before);
            EXPECT_EQ(workplace.standingRequest(), before) << "the next time";
            EXPECT_EQ(entryCount(workplace.container()), 2) << "nothing stays for long";
        });
}

TEST_F(SystemCallFailures, OfANotificationAreHeardByNobody) {
    const support::PrivateSessionBus bus;
    int heard = 0;
    foundation::NotificationObserver observer("org.ejemplo.algo", [&] { ++heard; });
    const auto post = [] {
        foundation::SessionBusNotificationCenter(std::chrono::milliseconds(20))
            .post("org.ejemplo.algo");
        return 0;
    };
    withEachCallFailing(post, [](int status, const SystemCallFailure&) {
        EXPECT_TRUE(status == 0 || status == outOfMemory);
    });
    observer.process();
    heard = 0;
    foundation::SessionBusNotificationCenter(std::chrono::seconds(10)).post("org.ejemplo.algo");
    while (observer.process() && heard == 0) {
        pollfd ready{observer.descriptor(), observer.events(), 0};
        ASSERT_EQ(::poll(&ready, 1, 10'000), 1) << "the next one is heard";
    }
    EXPECT_GT(heard, 0);
}

TEST_F(SystemCallFailures, OfPlacingLeaveThePlacementBeforeOrTheNewOneAndNothingElse) {
    KeptPlacement kept;
    enum { done, reported };
    kept.file.save(kept.before);
    withEachCallFailing(
        [&]() -> int {
            kept.file.save(kept.after);
            return kept.reports == 0 ? done : reported;
        },
        [&](int status, const SystemCallFailure& failure) {
            const auto placed = kept.file.load();
            EXPECT_TRUE(placed == kept.after || (placed == kept.before && status != done));
            EXPECT_TRUE(failure.forGood || entryCount(kept.folder) == 1);
            kept.file.save(kept.before);
            EXPECT_EQ(kept.file.load(), kept.before) << "the next time";
            EXPECT_EQ(entryCount(kept.folder), 1) << "nothing stays for long";
        });
    EXPECT_EQ(kept.reports, 0);
}

TEST_F(SystemCallFailures, OfLookingForThePlacementLoseNothing) {
    KeptPlacement kept;
    const auto aside = kept.path.string() + ".bad";
    enum { whole, none, other };
    kept.file.save(kept.before);
    withEachCallFailing(
        [&]() -> int {
            const auto placed = kept.file.load();
            return !placed ? none : *placed == kept.before ? whole : other;
        },
        [&](int status, const SystemCallFailure&) {
            EXPECT_NE(status, other);
            if (std::filesystem::exists(aside))
                std::filesystem::rename(aside, kept.path);
            EXPECT_EQ(kept.file.load(), kept.before) << "it is still there";
        });
}

}  // namespace

#pragma once

/// Lets one allocation of this thread fail while it lives: the n-th from its beginning, counted
/// from
/// 1. Every allocation of the process is asked first, those of C libraries too; under a sanitizer,
/// which brings an allocator of its own, only `operator new`. At most one of a thread at a time.
class FailingAllocation {
  public:
    explicit FailingAllocation(int turn);
    FailingAllocation(const FailingAllocation&) = delete;
    FailingAllocation& operator=(const FailingAllocation&) = delete;
    ~FailingAllocation();

    /// Whether as many allocations have been asked for.
    bool hasHappened() const;
};

#pragma once

#include "widgethost/MainLoop.hpp"
#include "widgethost/RateLimit.hpp"

#include <algorithm>
#include <chrono>
#include <functional>
#include <set>
#include <string>
#include <utility>

namespace widgethost {

/// Passes on what asks for reloads, at most twenty times a second however often it is asked: what
/// comes too soon waits, and whatever comes meanwhile joins it.
class ReloadPacing {
  public:
    /// What is to be reloaded: the kinds, or everything where they hold the empty one.
    using Kinds = std::set<std::string>;

    explicit ReloadPacing(std::function<void(const Kinds&)> reload) : reload_(std::move(reload)) {}

    /// `patience` is how long it may wait for something to join that comes anyway.
    void ask(std::string kind, std::chrono::milliseconds patience = {}) {
        kinds_.insert(std::move(kind));
        const Instant now = Instant::clock::now();
        const Instant due = std::max(limit_.earliest(), now + patience);
        if (waiting_ && due_ <= due)
            return;
        due_ = due;
        if (due <= now)
            pass();
        else
            waiting_ =
                after(std::chrono::ceil<std::chrono::milliseconds>(due - now), [this] { pass(); });
    }

  private:
    void pass() {
        waiting_.reset();
        limit_.happens(Instant::clock::now());
        reload_(std::exchange(kinds_, {}));
    }

    std::function<void(const Kinds&)> reload_;
    // A few at once, so that what belongs together need not wait.
    RateLimit limit_{4, std::chrono::milliseconds(200)};
    Kinds kinds_;
    Source waiting_;
    Instant due_;  // while something waits
};

}  // namespace widgethost

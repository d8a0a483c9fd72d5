#pragma once

#include "widgethost/MainLoop.hpp"
#include "widgethost/RateLimit.hpp"

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

    void ask(std::string kind) {
        kinds_.insert(std::move(kind));
        if (waiting_)
            return;
        const Instant now = Instant::clock::now();
        if (limit_.earliest() <= now)
            pass();
        else
            waiting_ = after(std::chrono::ceil<std::chrono::milliseconds>(limit_.earliest() - now),
                             [this] {
                                 waiting_.reset();
                                 pass();
                             });
    }

  private:
    void pass() {
        limit_.happens(Instant::clock::now());
        reload_(std::exchange(kinds_, {}));
    }

    std::function<void(const Kinds&)> reload_;
    // A few at once, so that what belongs together need not wait.
    RateLimit limit_{4, std::chrono::milliseconds(200)};
    Kinds kinds_;
    Source waiting_;
};

}  // namespace widgethost

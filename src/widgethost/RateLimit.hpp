#pragma once

#include <chrono>
#include <cstddef>
#include <deque>

namespace widgethost {

using Instant = std::chrono::steady_clock::time_point;

/// How often something may happen: `most` times in any `span`. A value; it does not look at the
/// clock itself.
class RateLimit {
  public:
    RateLimit(std::size_t most, std::chrono::milliseconds span) : most_(most), span_(span) {}

    /// From when on it may happen again; in the past while it may.
    Instant earliest() const {
        return happened_.size() < most_ ? Instant() : happened_.front() + span_;
    }

    /// Takes note that it happens now.
    void happens(Instant now) {
        happened_.push_back(now);
        if (happened_.size() > most_)
            happened_.pop_front();
    }

  private:
    std::size_t most_;
    std::chrono::milliseconds span_;
    std::deque<Instant> happened_;
};

}  // namespace widgethost

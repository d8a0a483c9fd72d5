#pragma once

#include "widgethost/RateLimit.hpp"

#include <algorithm>
#include <chrono>
#include <optional>

namespace widgethost {

/// How soon an extension that has stopped may be started again: at most five times in ten seconds
/// for what it stops at by itself. Something new to show may be what heals it: once that has stood
/// for half a second, it is worth a start of its own. A value; it does not look at the clock
/// itself.
class RestartLimit {
  public:
    /// It stopped by itself, or hung.
    void stopped(Instant now) { stops_.happens(now); }

    /// Somebody else ended it, for which it is not to blame.
    void killed(Instant now) { kills_.happens(now); }

    /// What it shows has changed.
    void changed(Instant now) { news_ = now; }

    /// It is started, and shows what there is now.
    void started() { news_.reset(); }

    /// From when on it may be started; in the past while it may.
    Instant earliest() const {
        const Instant afterStops =
            news_ ? std::min(stops_.earliest(), *news_ + standing) : stops_.earliest();
        return std::max(afterStops, kills_.earliest());
    }

  private:
    /// With a start and a picture behind it, a second is not over yet.
    static constexpr std::chrono::milliseconds standing{500};

    RateLimit stops_{5, std::chrono::seconds(10)};
    RateLimit kills_{60, std::chrono::seconds(10)};
    std::optional<Instant> news_;  // since when there is something that no start has seen
};

}  // namespace widgethost

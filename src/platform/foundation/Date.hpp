#pragma once

#include <compare>

namespace foundation {

/// An instant, as seconds since 2001-01-01 00:00:00 UTC. Never fails; NaN is unordered and equal to
/// nothing.
struct Date {
    double secondsSinceReferenceDate = 0;

    /// Seconds from `other` to this instant; negative when this one is earlier.
    constexpr double timeIntervalSince(Date other) const {
        return secondsSinceReferenceDate - other.secondsSinceReferenceDate;
    }
    constexpr Date addingTimeInterval(double seconds) const {
        return {secondsSinceReferenceDate + seconds};
    }

    friend constexpr bool operator==(Date, Date) = default;
    friend constexpr std::partial_ordering operator<=>(Date, Date) = default;
};

}  // namespace foundation

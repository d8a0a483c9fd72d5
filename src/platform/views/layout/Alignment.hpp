#pragma once

namespace views {

enum class HorizontalAlignment { leading, center, trailing };
enum class VerticalAlignment { top, center, bottom, firstTextBaseline };

struct Alignment {
    HorizontalAlignment horizontal = HorizontalAlignment::center;
    VerticalAlignment vertical = VerticalAlignment::center;
    bool operator==(const Alignment&) const = default;

    static constexpr Alignment leading() {
        return {HorizontalAlignment::leading, VerticalAlignment::center};
    }
    static constexpr Alignment trailing() {
        return {HorizontalAlignment::trailing, VerticalAlignment::center};
    }
};

// Leading is left in every language.
inline constexpr auto leading = HorizontalAlignment::leading;
inline constexpr auto trailing = HorizontalAlignment::trailing;
inline constexpr auto firstTextBaseline = VerticalAlignment::firstTextBaseline;

/// What a child leaves of its container: nothing of an endless one that it fills.
constexpr double roomLeft(double container, double child) {
    return container == child ? 0 : container - child;
}

/// Distance from the leading edge of a container to the leading edge of a child in it.
constexpr double alignedOffset(HorizontalAlignment alignment, double container, double child) {
    switch (alignment) {
        case HorizontalAlignment::leading:
            return 0;
        case HorizontalAlignment::center:
            return roomLeft(container, child) / 2;
        case HorizontalAlignment::trailing:
            return roomLeft(container, child);
    }
    return 0;
}

/// The same downwards; where there is only one child, a baseline aligns like a top.
constexpr double alignedOffset(VerticalAlignment alignment, double container, double child) {
    switch (alignment) {
        case VerticalAlignment::top:
        case VerticalAlignment::firstTextBaseline:
            return 0;
        case VerticalAlignment::center:
            return roomLeft(container, child) / 2;
        case VerticalAlignment::bottom:
            return roomLeft(container, child);
    }
    return 0;
}

}  // namespace views

#include "desktop/card/FocusOrder.hpp"

#include "widgethost/Direction.hpp"

#include <algorithm>
#include <cmath>

namespace desktop {

namespace {

using widgethost::Direction;
using Elements = std::vector<remote::Element>;

bool takesFocus(const remote::Element& element) {
    return element.role == views::AccessibilityRole::button && element.enabled;
}

/// The element that takes the focus at the lowest cost; those without a cost do not count.
template <class Cost>
std::optional<std::size_t> cheapest(const Elements& elements, Cost cost) {
    std::optional<std::size_t> best;
    double lowest = 0;
    for (std::size_t i = 0; i < elements.size(); ++i) {
        if (!takesFocus(elements[i]))
            continue;
        const std::optional<double> price = cost(i);
        if (price && (!best || *price < lowest)) {
            best = i;
            lowest = *price;
        }
    }
    return best;
}

double distance(std::size_t a, std::size_t b) {
    return std::abs(static_cast<double>(a) - static_cast<double>(b));
}

std::optional<std::size_t> nextInOrder(const Elements& elements,
                                       std::optional<std::size_t> from,
                                       bool isForward) {
    return cheapest(elements, [&](std::size_t i) -> std::optional<double> {
        if (from && (isForward ? i <= *from : i >= *from))
            return std::nullopt;
        return isForward ? static_cast<double>(i) : -static_cast<double>(i);
    });
}

views::Point middle(const views::Rect& frame) {
    return {frame.x + frame.width / 2, frame.y + frame.height / 2};
}

std::optional<Direction> direction(FocusMove move) {
    switch (move) {
        case FocusMove::left:
            return Direction::left;
        case FocusMove::right:
            return Direction::right;
        case FocusMove::up:
            return Direction::up;
        case FocusMove::down:
            return Direction::down;
        case FocusMove::forward:
        case FocusMove::backward:
            break;
    }
    return std::nullopt;
}

std::optional<std::size_t> nextOnSide(const Elements& elements, std::size_t from, Direction way) {
    const views::Point start = middle(elements[from].frame);
    return cheapest(elements, [&](std::size_t i) -> std::optional<double> {
        return widgethost::distance(start, middle(elements[i].frame), way, 4);
    });
}

bool areOfTheSameKinds(const Elements& one, const Elements& other) {
    return std::equal(one.begin(), one.end(), other.begin(), other.end(),
                      [](const auto& a, const auto& b) { return a.role == b.role; });
}

}  // namespace

std::optional<std::size_t> nextFocus(const Elements& elements,
                                     std::optional<std::size_t> from,
                                     FocusMove move) {
    const auto way = direction(move);
    if (!way || !from)
        return nextInOrder(elements, from, move != FocusMove::backward);
    return nextOnSide(elements, *from, *way);
}

std::optional<std::size_t> focusAfterChange(const Elements& before,
                                            std::size_t focused,
                                            const Elements& after) {
    if (areOfTheSameKinds(before, after) && takesFocus(after[focused]))
        return focused;
    const auto namesake = cheapest(after, [&](std::size_t i) -> std::optional<double> {
        if (after[i].label != before[focused].label)
            return std::nullopt;
        return distance(i, focused);
    });
    if (namesake)
        return namesake;
    return cheapest(after,
                    [&](std::size_t i) -> std::optional<double> { return distance(i, focused); });
}

}  // namespace desktop

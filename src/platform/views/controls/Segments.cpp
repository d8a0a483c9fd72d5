#include "platform/views/controls/Segments.hpp"

#include "platform/views/scene/Recorder.hpp"

#include <cmath>
#include <utility>

namespace views {

namespace {

/// Shares a width among parts as a stack does, to the last digit: each takes its part of what those
/// before it have left. Answers what they take together.
template <class Take>
double share(std::optional<double> width, int count, const Take& take) {
    double end = 0;
    double left = width.value_or(count * idealLength);
    for (int number = 1; number <= count; ++number) {
        const double length = left / (count - number + 1);
        take(number, end, length);
        end += length;
        if (std::isfinite(left))
            left -= length;
    }
    return end;
}

}  // namespace

Segments::Segments(int count, std::function<Control(int number)> make)
    : count_(count), make_(std::move(make)) {}

Size Segments::sizeThatFits(const Proposal& proposal, LayoutContext&) const {
    return {share(proposal.width, count_, [](int, double, double) {}),
            proposal.height.value_or(idealLength)};
}

void Segments::draw(const Placement& place, LayoutContext&, Recorder& recorder) const {
    share(place.proposal.width, count_, [&](int number, double start, double length) {
        Control control = make_(number);
        control.frame = {place.frame.x + start, place.frame.y, length, place.frame.height};
        recorder.control(std::move(control), [] {});
    });
}

}  // namespace views

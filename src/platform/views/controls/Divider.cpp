#include "platform/views/controls/Divider.hpp"

#include "platform/views/scene/Recorder.hpp"

namespace views {

namespace {

constexpr double thickness = 1;  // points
constexpr Color lineColor{1, 1, 1, 0.15};

}  // namespace

Size Divider::sizeThatFits(const Proposal& proposal, LayoutContext&) const {
    return {proposal.width.value_or(idealLength), thickness};
}

void Divider::draw(const Placement& place, LayoutContext&, Recorder& recorder) const {
    recorder.fill(FillShape{Rectangle{}, place.frame, lineColor});
}

}  // namespace views

#include "platform/views/stacks/Layers.hpp"

#include "platform/views/layout/LayoutContext.hpp"

#include <algorithm>
#include <optional>
#include <utility>

namespace views {

Placement aligned(const View& child,
                  const Proposal& offer,
                  Alignment alignment,
                  const Rect& frame,
                  LayoutContext& context) {
    const Size size = child.sizeThatFits(offer, context);
    return {{frame.x + alignedOffset(alignment.horizontal, frame.width, size.width),
             frame.y + alignedOffset(alignment.vertical, frame.height, size.height), size.width,
             size.height},
            offer};
}

Layers::Layers(Alignment alignment, Views children)
    : alignment_(alignment), children_(std::move(children)) {}

Size Layers::sizeThatFits(const Proposal& proposal, LayoutContext& context) const {
    Size largest;
    for (const View& child : children_) {
        const Size size = child.sizeThatFits(proposal, context);
        largest = {std::max(largest.width, size.width), std::max(largest.height, size.height)};
    }
    return largest;
}

void Layers::draw(const Placement& place, LayoutContext& context, Recorder& recorder) const {
    const Proposal offer = Proposal::exactly(place.frame.size());
    for (const View& child : children_)
        child.draw(aligned(child, offer, alignment_, place.frame, context), context, recorder);
}

double Layers::firstBaseline(const Proposal& proposal, LayoutContext& context) const {
    const Size size = sizeThatFits(proposal, context);
    const Rect frame{0, 0, size.width, size.height};
    const Proposal offer = Proposal::exactly(size);
    std::optional<double> topmost;
    for (const View& child : children_) {
        const Placement place = aligned(child, offer, alignment_, frame, context);
        const double baseline = place.frame.y + child.firstBaseline(offer, context);
        topmost = std::min(topmost.value_or(baseline), baseline);
    }
    return topmost.value_or(size.height);
}

}  // namespace views

#include "platform/views/scene/Card.hpp"

#include "platform/views/layout/LayoutContext.hpp"
#include "platform/views/scene/Recorder.hpp"
#include "platform/views/stacks/Layers.hpp"

namespace views {

Scene layOut(const View& content, const Card& card, const TextMeasurer& measurer) {
    LayoutContext context(measurer, card.scale);
    Recorder recorder(card.size);
    const Rect area = Rect{0, 0, card.size.width, card.size.height}.inset(card.margin);
    content.draw(aligned(content, Proposal::exactly(area.size()), {}, area, context), context,
                 recorder);
    return std::move(recorder).finish();
}

}  // namespace views

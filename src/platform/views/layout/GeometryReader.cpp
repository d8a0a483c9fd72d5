#include "platform/views/layout/GeometryReader.hpp"

#include "platform/views/layout/LayoutContext.hpp"
#include "platform/views/stacks/Layers.hpp"

#include <utility>

namespace views {

GeometryReader::GeometryReader(std::function<View(Size)> makeContent)
    : content(std::move(makeContent)) {}

Size GeometryReader::sizeThatFits(const Proposal& proposal, LayoutContext&) const {
    return sizeTaking(proposal);
}

void GeometryReader::draw(const Placement& place,
                          LayoutContext& context,
                          Recorder& recorder) const {
    const Size size = place.frame.size();
    const View& view = context.keep(content(size));
    const Alignment topLeading{HorizontalAlignment::leading, VerticalAlignment::top};
    view.draw(aligned(view, Proposal::exactly(size), topLeading, place.frame, context), context,
              recorder);
}

}  // namespace views

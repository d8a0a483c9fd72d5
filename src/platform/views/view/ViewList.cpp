#include "platform/views/view/ViewList.hpp"

#include "platform/views/stacks/Layers.hpp"

namespace views {

namespace {

void append(Views& flat, std::span<const View> views) {
    for (const View& view : views) {
        if (const auto members = view.node().members())
            append(flat, *members);
        else
            flat.push_back(view);
    }
}

}  // namespace

Views flattened(std::span<const View> views) {
    Views flat(BuildMemory::current());
    flat.reserve(views.size());
    append(flat, views);
    return flat;
}

Size ViewList::sizeThatFits(const Proposal& proposal, LayoutContext& context) const {
    return Layers({}, members_).sizeThatFits(proposal, context);
}

void ViewList::draw(const Placement& place, LayoutContext& context, Recorder& recorder) const {
    Layers({}, members_).draw(place, context, recorder);
}

double ViewList::firstBaseline(const Proposal& proposal, LayoutContext& context) const {
    return Layers({}, members_).firstBaseline(proposal, context);
}

}  // namespace views

#include "platform/views/modifiers/Modified.hpp"
#include "platform/views/modifiers/Wrapper.hpp"
#include "platform/views/scene/Recorder.hpp"

namespace views {

namespace {

struct WithOpacity : Wrapper {
    double opacity;
    void draw(const Placement& place, LayoutContext& context, Recorder& recorder) const {
        recorder.group(opacity, [&] { inner.draw(place, context, recorder); });
    }
};

struct Moved : Wrapper {
    double dx;
    double dy;
    void draw(const Placement& place, LayoutContext& context, Recorder& recorder) const {
        inner.draw({place.frame.movedBy(dx, dy), place.proposal}, context, recorder);
    }
};

struct WithContainerBackground : Wrapper {
    Color color;
    void draw(const Placement& place, LayoutContext& context, Recorder& recorder) const {
        recorder.background(color);
        inner.draw(place, context, recorder);
    }
};

struct WithFixedSize {
    View inner;
    FixedAxes axes;

    Size sizeThatFits(const Proposal& proposal, LayoutContext& context) const {
        return inner.sizeThatFits(offer(proposal), context);
    }
    double firstBaseline(const Proposal& proposal, LayoutContext& context) const {
        return inner.firstBaseline(offer(proposal), context);
    }
    void draw(const Placement& place, LayoutContext& context, Recorder& recorder) const {
        inner.draw({place.frame, offer(place.proposal)}, context, recorder);
    }
    Proposal offer(Proposal proposal) const {
        if (axes.horizontal)
            proposal.width.reset();
        if (axes.vertical)
            proposal.height.reset();
        return proposal;
    }
};

}  // namespace

View withOpacity(const View& view, double opacity) {
    // A group that lets everything through would only cost a layer.
    if (opacity == 1)
        return view;
    return modified(view, [&](const View& inner) { return WithOpacity{{inner}, opacity}; });
}

View movedBy(const View& view, double dx, double dy) {
    return modified(view, [&](const View& inner) { return Moved{{inner}, dx, dy}; });
}

View withFixedSize(const View& view, FixedAxes axes) {
    return modified(view, [&](const View& inner) { return WithFixedSize{inner, axes}; });
}

View withContainerBackground(const View& view, const Color& color) {
    return modified(view, [&](const View& inner) {
        return WithContainerBackground{{inner}, color};
    });
}

}  // namespace views

#pragma once

#include "platform/views/view/View.hpp"

namespace views {

/// A view that takes what it is offered and draws itself in it: `drawIn(frame, recorder)`.
template <class DrawIn>
struct FrameDrawing {
    DrawIn drawIn;

    Size sizeThatFits(const Proposal& proposal, LayoutContext&) const {
        return sizeTaking(proposal);
    }
    void draw(const Placement& place, LayoutContext&, Recorder& recorder) const {
        drawIn(place.frame, recorder);
    }
};

template <class DrawIn>
FrameDrawing(DrawIn) -> FrameDrawing<DrawIn>;

}  // namespace views

#pragma once

#include "platform/views/layout/Alignment.hpp"
#include "platform/views/view/View.hpp"

namespace views {

/// Views on each other: each is offered what the whole is offered, then the size of the largest.
class Layers {
  public:
    Layers(Alignment alignment, Views children);

    Size sizeThatFits(const Proposal& proposal, LayoutContext& context) const;
    void draw(const Placement& place, LayoutContext& context, Recorder& recorder) const;
    double firstBaseline(const Proposal& proposal, LayoutContext& context) const;

  private:
    Alignment alignment_;
    Views children_;
};

/// Where `child` stands when it is offered `offer` and aligned in `frame`.
Placement aligned(const View& child,
                  const Proposal& offer,
                  Alignment alignment,
                  const Rect& frame,
                  LayoutContext& context);

}  // namespace views

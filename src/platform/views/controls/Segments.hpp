#pragma once

#include "platform/views/scene/Scene.hpp"
#include "platform/views/view/View.hpp"

#include <functional>

namespace views {

/// A row of equal parts to press, with nothing of their own to see: buttons with clear labels, side
/// by side. They are made when they are drawn, numbered from 1; their frames are the row's affair.
class Segments : public Modifiers<Segments> {
  public:
    Segments(int count, std::function<Control(int number)> make);

    Size sizeThatFits(const Proposal& proposal, LayoutContext& context) const;
    void draw(const Placement& place, LayoutContext& context, Recorder& recorder) const;

  private:
    int count_;
    std::function<Control(int number)> make_;
};

}  // namespace views

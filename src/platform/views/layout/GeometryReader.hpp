#pragma once

#include "platform/views/view/View.hpp"

#include <functional>

namespace views {

/// A view that takes what it is offered and makes its content for the size it got; the content
/// stands at its top-left corner.
struct GeometryReader : Modifiers<GeometryReader> {
    std::function<View(Size)> content;

    explicit GeometryReader(std::function<View(Size)> makeContent);

    Size sizeThatFits(const Proposal& proposal, LayoutContext& context) const;
    void draw(const Placement& place, LayoutContext& context, Recorder& recorder) const;
};

}  // namespace views

#pragma once

#include "platform/views/layout/Proposal.hpp"

#include <optional>
#include <span>

namespace views {

class LayoutContext;
class Recorder;
class View;

/// What a primitive view answers while it is laid out and drawn. Immutable.
class Node {
  public:
    virtual ~Node() = default;
    /// The size the view takes for an offer; never negative.
    virtual Size sizeThatFits(const Proposal& proposal, LayoutContext& context) const = 0;
    /// Adds what the view draws at its place.
    virtual void draw(const Placement& place, LayoutContext& context, Recorder& recorder) const = 0;
    /// Distance of the first line's baseline from the view's top; without a text, its bottom.
    virtual double firstBaseline(const Proposal& proposal, LayoutContext& context) const = 0;
    /// The least length of a spacer; nothing for any other view.
    virtual std::optional<double> spacerLength() const { return std::nullopt; }
    /// The members of a list; nothing for a single view.
    virtual std::optional<std::span<const View>> members() const { return std::nullopt; }
};

}  // namespace views

#pragma once

#include "platform/views/layout/Proposal.hpp"

#include <cstddef>
#include <optional>
#include <span>

namespace views {

class LayoutContext;
class Recorder;
class View;

/// What a primitive view answers while it is laid out and drawn. Immutable.
class Node {
  public:
    /// The size the view takes for an offer; never negative.
    virtual Size sizeThatFits(const Proposal& proposal, LayoutContext& context) const = 0;
    /// Adds what the view draws at its place.
    virtual void draw(const Placement& place, LayoutContext& context, Recorder& recorder) const = 0;
    /// Distance of the first line's baseline from the view's top; without a text, its bottom.
    virtual double firstBaseline(const Proposal& proposal, LayoutContext& context) const = 0;
    /// The length that the view takes along an axis whatever it is offered there; nothing where
    /// that makes a difference or is hard to tell. `acrossOffer` is offered on the other axis;
    /// where it is absent, anything may be.
    virtual std::optional<double> fixedLength(Axis axis,
                                              std::optional<double> acrossOffer,
                                              LayoutContext& context) const = 0;
    /// The least length of a spacer; nothing for any other view.
    std::optional<double> spacerLength() const { return spacerLength_; }
    /// The members of a list; nothing for a single view.
    virtual std::optional<std::span<const View>> members() const { return std::nullopt; }

  protected:
    explicit Node(std::optional<double> spacerLength) : spacerLength_(spacerLength) {}
    Node(const Node&) = delete;
    Node& operator=(const Node&) = delete;
    ~Node() = default;

  private:
    friend class NodePointer;
    /// Ends the node and gives its memory back.
    virtual void destroy() = 0;

    // Not asked of the view: a stack wants to know it of each child many times over.
    const std::optional<double> spacerLength_;
    std::size_t holders_ = 1;
};

}  // namespace views

#pragma once

#include "platform/views/layout/Alignment.hpp"
#include "platform/views/modifiers/Frame.hpp"
#include "platform/views/modifiers/Padding.hpp"
#include "platform/views/shapes/Shape.hpp"

namespace views {

class View;
struct Color;

/// Which lengths a view decides by itself, whatever it is offered.
struct FixedAxes {
    bool horizontal = true;
    bool vertical = true;
};

/// What can be asked of every view; each answer is a new view around the old one, so modifiers
/// stand in drawing order, from the inside out. On a list of views they go to each member.
template <class Self>
struct Modifiers {
    bool operator==(const Modifiers&) const = default;

    View frame(const FixedFrame& frame) const;
    View frame(const FlexibleFrame& frame) const;
    View padding(Edge edges, double length) const;
    /// A view behind this one, offered exactly its size.
    View background(const View& view) const;
    View background(const Color& color, const Shape& shape) const;
    /// A view in front of this one, offered exactly its size.
    View overlay(const View& view) const;
    /// The view and all in it drawn as one picture, `opacity` (0 to 1) opaque.
    View opacity(double opacity) const;
    /// Moves what is drawn and can be pressed; the layout stays.
    View offset(double dx, double dy) const;
    View fixedSize(FixedAxes axes) const;
    /// The colour of the whole card, margins included.
    View containerBackground(const Color& color) const;
};

}  // namespace views

#pragma once

namespace views {

class View;
struct Color;

/// What every shape can be asked for: the views made of it.
template <class Self>
struct ShapeModifiers {
    bool operator==(const ShapeModifiers&) const = default;
    /// The shape filled with a colour.
    View fill(const Color& color) const;
    /// The shape's border drawn wholly inside its edge, `lineWidth` points wide.
    View strokeBorder(const Color& color, double lineWidth) const;
};

}  // namespace views

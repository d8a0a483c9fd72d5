#pragma once

namespace views {

class View;

/// A colour in sRGB, components from 0 to 1, not premultiplied. As a view it fills what it is
/// given.
struct Color {
    double red = 0;
    double green = 0;
    double blue = 0;
    double alpha = 1;
    bool operator==(const Color&) const = default;

    /// The same colour, `factor` times as opaque.
    constexpr Color opacity(double factor) const { return {red, green, blue, alpha * factor}; }
    static constexpr Color clear() { return {0, 0, 0, 0}; }

    View body() const;
};

}  // namespace views

#pragma once

namespace views {

// Lengths are points of the card, the origin is its top-left corner, y grows downwards.

struct Point {
    double x = 0;
    double y = 0;
    bool operator==(const Point&) const = default;
};

struct Size {
    double width = 0;
    double height = 0;
    bool operator==(const Size&) const = default;
};

struct Rect {
    double x = 0;
    double y = 0;
    double width = 0;
    double height = 0;
    bool operator==(const Rect&) const = default;

    double right() const { return x + width; }
    double bottom() const { return y + height; }
    Size size() const { return {width, height}; }

    /// The rectangle with each edge moved inwards by `distance` (outwards if negative).
    Rect inset(double distance) const {
        return {x + distance, y + distance, width - 2 * distance, height - 2 * distance};
    }
    Rect movedBy(double dx, double dy) const { return {x + dx, y + dy, width, height}; }
    bool contains(Point p) const { return p.x >= x && p.x < right() && p.y >= y && p.y < bottom(); }
};

}  // namespace views

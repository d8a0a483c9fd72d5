#pragma once

#include "platform/views/shapes/ShapeModifiers.hpp"

#include <variant>

namespace views {

struct Rectangle : ShapeModifiers<Rectangle> {
    bool operator==(const Rectangle&) const = default;
};
/// The largest circle in the middle of what it is given.
struct Circle : ShapeModifiers<Circle> {
    bool operator==(const Circle&) const = default;
};
/// A rounded rectangle whose radius is half its smaller side.
struct Capsule : ShapeModifiers<Capsule> {
    bool operator==(const Capsule&) const = default;
};
/// A rectangle with continuous corners; the radius is limited to half the smaller side.
struct RoundedRectangle : ShapeModifiers<RoundedRectangle> {
    double cornerRadius = 0;
    bool operator==(const RoundedRectangle&) const = default;
};

using Shape = std::variant<Rectangle, Circle, Capsule, RoundedRectangle>;

}  // namespace views

#include "platform/views/geometry/Color.hpp"
#include "platform/views/scene/Recorder.hpp"
#include "platform/views/shapes/FrameDrawing.hpp"
#include "platform/views/shapes/Shape.hpp"

#include <algorithm>

namespace views {

namespace {

/// Where the shape stands in what it was given: a circle is as large as it can be, in the middle.
Rect frameOf(const Shape& shape, const Rect& given) {
    if (!std::holds_alternative<Circle>(shape))
        return given;
    const double side = std::min(given.width, given.height);
    return {given.x + (given.width - side) / 2, given.y + (given.height - side) / 2, side, side};
}

/// The shape with its edge moved inwards, and its corners with it.
Shape inset(Shape shape, double distance) {
    if (auto* rounded = std::get_if<RoundedRectangle>(&shape))
        rounded->cornerRadius = std::max(rounded->cornerRadius - distance, 0.0);
    return shape;
}

}  // namespace

template <class Self>
View ShapeModifiers<Self>::fill(const Color& color) const {
    const Shape shape = static_cast<const Self&>(*this);
    return FrameDrawing{[shape, color](const Rect& frame, Recorder& recorder) {
        recorder.fill(FillShape{shape, frameOf(shape, frame), color});
    }};
}

template <class Self>
View ShapeModifiers<Self>::strokeBorder(const Color& color, double lineWidth) const {
    const Shape shape = static_cast<const Self&>(*this);
    return FrameDrawing{[shape, color, lineWidth](const Rect& frame, Recorder& recorder) {
        const double half = lineWidth / 2;
        recorder.stroke(
            StrokeShape{inset(shape, half), frameOf(shape, frame).inset(half), lineWidth, color});
    }};
}

template struct ShapeModifiers<Rectangle>;
template struct ShapeModifiers<Circle>;
template struct ShapeModifiers<Capsule>;
template struct ShapeModifiers<RoundedRectangle>;

View Color::body() const {
    return Rectangle{}.fill(*this);
}

}  // namespace views

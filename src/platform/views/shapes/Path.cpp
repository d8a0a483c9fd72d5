#include "platform/views/shapes/Path.hpp"

#include "platform/views/scene/Recorder.hpp"
#include "platform/views/shapes/FrameDrawing.hpp"

namespace views {

namespace {

std::vector<Point> movedTo(const Rect& frame, std::vector<Point> points) {
    for (Point& point : points)
        point = {point.x + frame.x, point.y + frame.y};
    return points;
}

}  // namespace

View Path::fill(const Color& color) const {
    return FrameDrawing{[path = *this, color](const Rect& frame, Recorder& recorder) {
        recorder.fill(FillPath{movedTo(frame, path.points), color});
    }};
}

View Path::stroke(const Color& color, const StrokeStyle& style) const {
    return FrameDrawing{[path = *this, color, style](const Rect& frame, Recorder& recorder) {
        recorder.stroke(StrokePath{movedTo(frame, path.points), style, color});
    }};
}

}  // namespace views

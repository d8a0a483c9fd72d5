#include "platform/views/shapes/Path.hpp"

#include "platform/views/scene/Recorder.hpp"
#include "platform/views/view/View.hpp"

namespace views {

namespace {

std::vector<Point> movedTo(const Rect& frame, std::vector<Point> points) {
    for (Point& point : points)
        point = {point.x + frame.x, point.y + frame.y};
    return points;
}

struct FilledPath {
    Path path;
    Color color;

    Size sizeThatFits(const Proposal& proposal, LayoutContext&) const {
        return sizeTaking(proposal);
    }
    void draw(const Placement& place, LayoutContext&, Recorder& recorder) const {
        recorder.fill(FillPath{movedTo(place.frame, path.points), color});
    }
};

struct StrokedPath {
    Path path;
    Color color;
    StrokeStyle style;

    Size sizeThatFits(const Proposal& proposal, LayoutContext&) const {
        return sizeTaking(proposal);
    }
    void draw(const Placement& place, LayoutContext&, Recorder& recorder) const {
        recorder.stroke(StrokePath{movedTo(place.frame, path.points), style, color});
    }
};

}  // namespace

View Path::fill(const Color& color) const {
    return FilledPath{*this, color};
}

View Path::stroke(const Color& color, const StrokeStyle& style) const {
    return StrokedPath{*this, color, style};
}

}  // namespace views

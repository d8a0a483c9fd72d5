#include "platform/views/shapes/Outline.hpp"

#include <algorithm>
#include <cmath>

namespace views {

namespace {

// The continuous corner: distances from the corner in units of its radius. The curve leaves the
// edge at `reach`, bends with two controls on the edge to `shoulder`, and crosses the diagonal by
// way of `bend`; the second half mirrors the first.
constexpr double reach = 1.528665;
constexpr double firstControl = 1.08849296;
constexpr double secondControl = 0.86840694;
constexpr Point shoulder{0.63149379, 0.07491139};
constexpr Point bend{0.37282383, 0.16905956};

// Control distance for a quarter circle of radius 1.
constexpr double quarterCircle = 0.5522847498307936;

/// Where the corner's curve lies along one of its edges, as distances from the corner.
struct CornerEdge {
    double start;
    double control1;
    double control2;
};

CornerEdge cornerEdge(double side, double radius) {
    if (side >= 2 * reach * radius)
        return {reach * radius, firstControl * radius, secondControl * radius};
    const double start = side / 2;
    const double beyond = start - radius;
    return {start, start - (0.04 * radius + 0.75697 * beyond),
            start - (0.18 * radius + 0.90847 * beyond)};
}

/// A corner as the path runs through it: `back` points along the edge it comes from, `ahead` along
/// the edge it goes on to.
struct Corner {
    Point at;
    Point back;
    Point ahead;

    Point point(double alongBack, double alongAhead) const {
        return {at.x + back.x * alongBack + ahead.x * alongAhead,
                at.y + back.y * alongBack + ahead.y * alongAhead};
    }
};

void appendCorner(Outline& path,
                  const Corner& corner,
                  const CornerEdge& from,
                  const CornerEdge& to,
                  double r) {
    const Point start = corner.point(from.start, 0);
    if (path.empty())
        path.push_back(MoveTo{start});
    else
        path.push_back(LineTo{start});
    path.push_back(CurveTo{corner.point(from.control1, 0), corner.point(from.control2, 0),
                           corner.point(shoulder.x * r, shoulder.y * r)});
    path.push_back(CurveTo{corner.point(bend.x * r, bend.y * r),
                           corner.point(bend.y * r, bend.x * r),
                           corner.point(shoulder.y * r, shoulder.x * r)});
    path.push_back(CurveTo{corner.point(0, to.control2), corner.point(0, to.control1),
                           corner.point(0, to.start)});
}

Outline rectangleOutline(const Rect& f) {
    return {MoveTo{{f.x, f.y}}, LineTo{{f.right(), f.y}}, LineTo{{f.right(), f.bottom()}},
            LineTo{{f.x, f.bottom()}}, ClosePath{}};
}

Outline roundedOutline(const Rect& f, double cornerRadius) {
    const double r = std::min(cornerRadius, std::min(f.width, f.height) / 2);
    if (!(r > 0))
        return rectangleOutline(f);
    const CornerEdge x = cornerEdge(f.width, r);
    const CornerEdge y = cornerEdge(f.height, r);
    Outline path;
    appendCorner(path, {{f.right(), f.y}, {-1, 0}, {0, 1}}, x, y, r);
    appendCorner(path, {{f.right(), f.bottom()}, {0, -1}, {-1, 0}}, y, x, r);
    appendCorner(path, {{f.x, f.bottom()}, {1, 0}, {0, -1}}, x, y, r);
    appendCorner(path, {{f.x, f.y}, {0, 1}, {1, 0}}, y, x, r);
    path.push_back(ClosePath{});
    return path;
}

Outline circleOutline(const Rect& f) {
    const double r = std::min(f.width, f.height) / 2;
    const double k = quarterCircle * r;
    const double x = f.x + f.width / 2;
    const double y = f.y + f.height / 2;
    return {MoveTo{{x, y - r}},
            CurveTo{{x + k, y - r}, {x + r, y - k}, {x + r, y}},
            CurveTo{{x + r, y + k}, {x + k, y + r}, {x, y + r}},
            CurveTo{{x - k, y + r}, {x - r, y + k}, {x - r, y}},
            CurveTo{{x - r, y - k}, {x - k, y - r}, {x, y - r}},
            ClosePath{}};
}

struct OutlineOf {
    const Rect& frame;

    Outline operator()(const Rectangle&) const { return rectangleOutline(frame); }
    Outline operator()(const Circle&) const { return circleOutline(frame); }
    Outline operator()(const Capsule&) const {
        return roundedOutline(frame, std::min(frame.width, frame.height) / 2);
    }
    Outline operator()(const RoundedRectangle& shape) const {
        return roundedOutline(frame, shape.cornerRadius);
    }
};

}  // namespace

Outline outline(const Shape& shape, const Rect& frame) {
    const bool finite = std::isfinite(frame.x) && std::isfinite(frame.y) &&
                        std::isfinite(frame.width) && std::isfinite(frame.height);
    if (!finite || frame.width <= 0 || frame.height <= 0)
        return {};
    return std::visit(OutlineOf{frame}, shape);
}

}  // namespace views

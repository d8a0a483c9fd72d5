#include "platform/views/symbols/CutOutline.hpp"

#include <cstddef>
#include <variant>
#include <vector>

namespace views {

namespace {

constexpr int linesPerCurve = 16;

Point between(Point a, Point b, double t) {
    return {a.x + (b.x - a.x) * t, a.y + (b.y - a.y) * t};
}

struct Flattener {
    std::vector<Point> points;

    void operator()(const MoveTo& move) { points.push_back(move.to); }
    void operator()(const LineTo& line) { points.push_back(line.to); }
    void operator()(const CurveTo& curve) {
        const Point from = points.back();
        for (int i = 1; i <= linesPerCurve; ++i) {
            const double t = static_cast<double>(i) / linesPerCurve;
            const Point a = between(from, curve.control1, t);
            const Point b = between(curve.control1, curve.control2, t);
            const Point c = between(curve.control2, curve.to, t);
            points.push_back(between(between(a, b, t), between(b, c, t), t));
        }
    }
    void operator()(const ClosePath&) {}
};

double depth(const HalfPlane& half, Point p) {
    return (p.x - half.on.x) * half.inwards.x + (p.y - half.on.y) * half.inwards.y;
}

}  // namespace

Outline cutOutline(const Outline& path, const HalfPlane& half) {
    Flattener flat;
    for (const OutlineElement& element : path)
        std::visit(flat, element);

    std::vector<Point> kept;
    for (std::size_t i = 0; i < flat.points.size(); ++i) {
        const Point from = flat.points[i];
        const Point to = flat.points[(i + 1) % flat.points.size()];
        const double depthFrom = depth(half, from);
        const double depthTo = depth(half, to);
        if (depthFrom >= 0)
            kept.push_back(from);
        if ((depthFrom >= 0) != (depthTo >= 0))
            kept.push_back(between(from, to, depthFrom / (depthFrom - depthTo)));
    }

    Outline cut;
    for (const Point p : kept) {
        if (cut.empty())
            cut.push_back(MoveTo{p});
        else
            cut.push_back(LineTo{p});
    }
    if (!cut.empty())
        cut.push_back(ClosePath{});
    return cut;
}

}  // namespace views

#include "platform/views/shapes/Outline.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <ostream>

namespace views {

void PrintTo(const Point& p, std::ostream* out) {
    *out << '(' << p.x << ", " << p.y << ')';
}

namespace {

constexpr double close = 1e-9;

Point lastPoint(const OutlineElement& element, Point from) {
    if (const auto* move = std::get_if<MoveTo>(&element))
        return move->to;
    if (const auto* line = std::get_if<LineTo>(&element))
        return line->to;
    if (const auto* curve = std::get_if<CurveTo>(&element))
        return curve->to;
    return from;
}

/// Points along an outline, close enough together to stand for it.
std::vector<Point> pointsAlong(const Outline& path) {
    std::vector<Point> points;
    Point from;
    for (const OutlineElement& element : path) {
        if (const auto* curve = std::get_if<CurveTo>(&element)) {
            for (int i = 1; i <= 20; ++i) {
                const double t = i / 20.0;
                const double u = 1 - t;
                const auto at = [&](double a, double b, double c, double d) {
                    return u * u * u * a + 3 * u * u * t * b + 3 * u * t * t * c + t * t * t * d;
                };
                points.push_back({at(from.x, curve->control1.x, curve->control2.x, curve->to.x),
                                  at(from.y, curve->control1.y, curve->control2.y, curve->to.y)});
            }
        }
        from = lastPoint(element, from);
        points.push_back(from);
    }
    return points;
}

const std::vector<Shape>& everyShape() {
    static const std::vector<Shape> shapes{
        Rectangle{},
        Circle{},
        Capsule{},
        RoundedRectangle{.cornerRadius = 3},
        RoundedRectangle{.cornerRadius = 7},
        RoundedRectangle{.cornerRadius = 27.88},
        RoundedRectangle{.cornerRadius = 1e9},
    };
    return shapes;
}

TEST(Outline, StaysInsideItsFrameForEveryShapeAndSize) {
    for (const Shape& shape : everyShape()) {
        for (double width = 0.5; width <= 100; width *= 1.7) {
            for (double height = 0.5; height <= 100; height *= 1.9) {
                const Rect frame{3, -5, width, height};
                const std::vector<Point> points = pointsAlong(outline(shape, frame));
                ASSERT_FALSE(points.empty());
                for (const Point& p : points) {
                    ASSERT_GE(p.x, frame.x - close)
                        << shape.index() << ' ' << width << 'x' << height;
                    ASSERT_LE(p.x, frame.right() + close);
                    ASSERT_GE(p.y, frame.y - close);
                    ASSERT_LE(p.y, frame.bottom() + close);
                }
            }
        }
    }
}

TEST(Outline, TouchesAllFourEdgesUnlessItIsACircle) {
    for (const Shape& shape : everyShape()) {
        if (std::holds_alternative<Circle>(shape))
            continue;
        const Rect frame{10, 20, 30, 16};
        const std::vector<Point> points = pointsAlong(outline(shape, frame));
        const auto [left, right] = std::minmax_element(points.begin(), points.end(),
                                                       [](Point a, Point b) { return a.x < b.x; });
        const auto [top, bottom] = std::minmax_element(points.begin(), points.end(),
                                                       [](Point a, Point b) { return a.y < b.y; });
        EXPECT_NEAR(left->x, 10, close);
        EXPECT_NEAR(right->x, 40, close);
        EXPECT_NEAR(top->y, 20, close);
        EXPECT_NEAR(bottom->y, 36, close);
    }
}

TEST(Outline, IsSymmetricalBothWays) {
    for (const Shape& shape : everyShape()) {
        for (const Size size : {Size{40, 40}, Size{60, 22}, Size{7, 16}, Size{364, 170}}) {
            const std::vector<Point> points =
                pointsAlong(outline(shape, {0, 0, size.width, size.height}));
            const auto holds = [&points](Point wanted) {
                return std::any_of(points.begin(), points.end(), [wanted](Point p) {
                    return std::hypot(p.x - wanted.x, p.y - wanted.y) < 1e-6;
                });
            };
            for (const Point& p : points) {
                ASSERT_TRUE(holds({size.width - p.x, p.y})) << shape.index();
                ASSERT_TRUE(holds({p.x, size.height - p.y})) << shape.index();
            }
        }
    }
}

TEST(Outline, LeavesTheEdgesOfARoundedRectangleWithoutAKink) {
    for (const Size size : {Size{100, 80}, Size{7, 16}, Size{120, 5}, Size{22, 22}}) {
        const Outline path =
            outline(RoundedRectangle{.cornerRadius = 3}, {0, 0, size.width, size.height});
        Point from;
        Point before;  // the direction in which the path arrived
        bool arrived = false;
        for (const OutlineElement& element : path) {
            const Point to = lastPoint(element, from);
            Point leaving{to.x - from.x, to.y - from.y};
            Point arriving = leaving;
            if (const auto* curve = std::get_if<CurveTo>(&element)) {
                leaving = {curve->control1.x - from.x, curve->control1.y - from.y};
                arriving = {to.x - curve->control2.x, to.y - curve->control2.y};
            }
            const double length = std::hypot(leaving.x, leaving.y);
            if (arrived && length > 1e-9) {
                // The published numbers are rounded, hence not exactly in line at the joints.
                const double turn = std::atan2(before.x * leaving.y - before.y * leaving.x,
                                               before.x * leaving.x + before.y * leaving.y);
                EXPECT_NEAR(turn, 0, 0.09) << size.width << 'x' << size.height;
            }
            if (length > 1e-9) {
                before = arriving;
                arrived = !std::holds_alternative<MoveTo>(element);
            }
            from = to;
        }
    }
}

TEST(Outline, DrawsAContinuousCornerWithTheKnownNumbers) {
    const Outline path = outline(RoundedRectangle{.cornerRadius = 10}, {0, 0, 100, 100});
    ASSERT_EQ(path.size(), 17u);
    EXPECT_EQ(std::get<MoveTo>(path[0]).to, (Point{100 - 15.28665, 0}));
    const auto expectCurve = [&path](std::size_t at, Point control1, Point control2, Point to) {
        const auto& curve = std::get<CurveTo>(path[at]);
        EXPECT_NEAR(curve.control1.x, control1.x, 1e-6);
        EXPECT_NEAR(curve.control1.y, control1.y, 1e-6);
        EXPECT_NEAR(curve.control2.x, control2.x, 1e-6);
        EXPECT_NEAR(curve.control2.y, control2.y, 1e-6);
        EXPECT_NEAR(curve.to.x, to.x, 1e-6);
        EXPECT_NEAR(curve.to.y, to.y, 1e-6);
    };
    expectCurve(1, {89.1150704, 0}, {91.3159306, 0}, {93.6850621, 0.7491139});
    expectCurve(2, {96.2717617, 1.6905956}, {98.3094044, 3.7282383}, {99.2508861, 6.3149379});
    expectCurve(3, {100, 8.6840694}, {100, 10.8849296}, {100, 15.28665});
    EXPECT_EQ(std::get<LineTo>(path[4]).to, (Point{100, 100 - 15.28665}));
}

TEST(Outline, PullsTheCurveInOnAnAxisThatIsTooShortForIt) {
    // The knob of a level bar: 7 wide, too narrow for two corners of radius 3.
    const Outline path = outline(RoundedRectangle{.cornerRadius = 3}, {0, 0, 7, 16});
    const auto& onTop = std::get<CurveTo>(path[1]);
    EXPECT_EQ(std::get<MoveTo>(path[0]).to, (Point{3.5, 0}));
    EXPECT_NEAR(onTop.control1.x, 7 - (3.5 - (0.04 * 3 + 0.75697 * 0.5)), close);
    EXPECT_NEAR(onTop.control2.x, 7 - (3.5 - (0.18 * 3 + 0.90847 * 0.5)), close);
    EXPECT_NEAR(onTop.to.x, 7 - 0.63149379 * 3, close);
    const auto& onTheRight = std::get<CurveTo>(path[3]);
    EXPECT_NEAR(onTheRight.to.y, 1.528665 * 3, close);
    EXPECT_NEAR(onTheRight.control1.y, 0.86840694 * 3, close);
}

TEST(Outline, LimitsTheRadiusToHalfTheSmallerSide) {
    const Rect frame{0, 0, 40, 10};
    EXPECT_EQ(outline(RoundedRectangle{.cornerRadius = 99}, frame),
              outline(RoundedRectangle{.cornerRadius = 5}, frame));
    EXPECT_EQ(outline(Capsule{}, frame), outline(RoundedRectangle{.cornerRadius = 5}, frame));
}

TEST(Outline, MakesARectangleOfARadiusThatRoundsNothing) {
    const Rect frame{1, 2, 3, 4};
    const Outline corners{MoveTo{{1, 2}}, LineTo{{4, 2}}, LineTo{{4, 6}}, LineTo{{1, 6}},
                          ClosePath{}};
    EXPECT_EQ(outline(Rectangle{}, frame), corners);
    for (const double radius : {0.0, -1.0, std::numeric_limits<double>::quiet_NaN()})
        EXPECT_EQ(outline(RoundedRectangle{.cornerRadius = radius}, frame), corners) << radius;
}

TEST(Outline, PutsTheLargestCircleInTheMiddleOfItsFrame) {
    const std::vector<Point> points = pointsAlong(outline(Circle{}, {10, 20, 30, 6}));
    for (const Point& p : points)
        EXPECT_NEAR(std::hypot(p.x - 25, p.y - 23), 3, 0.001);
    EXPECT_EQ(points.front(), (Point{25, 20}));
}

TEST(Outline, IsEmptyWithoutAreaOrWithoutNumbers) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double infinity = std::numeric_limits<double>::infinity();
    for (const Shape& shape : everyShape()) {
        for (const Rect frame :
             {Rect{0, 0, 0, 10}, Rect{0, 0, 10, 0}, Rect{0, 0, -1, 10}, Rect{0, 0, 10, -1},
              Rect{0, 0, nan, 10}, Rect{0, 0, 10, nan}, Rect{nan, 0, 10, 10}, Rect{0, nan, 10, 10},
              Rect{0, 0, infinity, 10}, Rect{-infinity, 0, 10, 10}})
            EXPECT_EQ(outline(shape, frame), Outline{});
    }
}

}  // namespace
}  // namespace views

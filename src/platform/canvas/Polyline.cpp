#include "platform/canvas/Polyline.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <span>

namespace canvas {
namespace {

constexpr double columnsPerPixel = 2;

double column(const views::Point& point) {
    return std::floor(point.x * columnsPerPixel);
}

/// Adds what stands for points that share a column, in their order.
void addThinned(std::vector<views::Point>& line, std::span<const views::Point> run) {
    const auto [highest, lowest] = std::minmax_element(
        run.begin(), run.end(), [](const auto& a, const auto& b) { return a.y < b.y; });
    std::array<std::ptrdiff_t, 4> kept{0, highest - run.begin(), lowest - run.begin(),
                                       std::ssize(run) - 1};
    std::sort(kept.begin(), kept.end());
    std::ptrdiff_t before = -1;
    for (const std::ptrdiff_t index : kept) {
        if (index != before)
            line.push_back(run[static_cast<std::size_t>(index)]);
        before = index;
    }
}

}  // namespace

std::vector<views::Point> pixelPolyline(const std::vector<views::Point>& points,
                                        const PixelGrid& grid) {
    std::vector<views::Point> pixels;
    pixels.reserve(points.size());
    for (const views::Point& point : points)
        if (isFinite(point))
            pixels.push_back(grid.pixels(point));

    std::vector<views::Point> line;
    for (auto start = pixels.begin(); start != pixels.end();) {
        const auto end = std::find_if(start, pixels.end(), [&](const views::Point& point) {
            return column(point) != column(*start);
        });
        addThinned(line, {start, end});
        start = end;
    }
    return line;
}

}  // namespace canvas

#include "platform/canvas/PixelCanvas.hpp"

#include "platform/canvas/Blend.hpp"
#include "platform/canvas/Stamper.hpp"

#include <algorithm>
#include <cmath>
#include <stdexcept>
#include <vector>

namespace canvas {

namespace {

constexpr std::size_t keptStencils = 4 << 20;  // bytes

/// Takes away what lies outside the card. Only the corners can: the mask is full everywhere else.
void cutCorners(const Canvas& canvas, const Mask& card, double scale) {
    constexpr double reach = 1.53 * views::cardCornerRadius;  // of a corner along an edge
    const int zone = static_cast<int>(std::min(std::ceil(reach * scale), 1e6)) + 1;
    const PixelRect& area = canvas.area;
    const auto width = static_cast<std::size_t>(area.width);
    const auto side = static_cast<std::size_t>(std::min(zone, area.width));
    for (int y = 0; y < area.height; ++y) {
        if (y >= zone && y < area.height - zone)
            continue;
        const std::size_t row = static_cast<std::size_t>(y) * width;
        const std::size_t right = row + std::max(width - side, side);
        keepCovered(&canvas.argb[row], &card.coverage[row], side);
        keepCovered(canvas.argb.data() + right, card.coverage.data() + right, row + width - right);
    }
}

}  // namespace

struct PixelCanvas::Contents {
    FontLibrary& fonts;
    Stencils stencils{keptStencils};
    std::vector<std::uint32_t> pixels;
};

PixelCanvas::PixelCanvas(FontLibrary& fonts)
    : contents_(std::make_unique<Contents>(Contents{fonts})) {}
PixelCanvas::~PixelCanvas() = default;

Pixels PixelCanvas::draw(const views::Scene& scene, double scale) {
    const PixelSize size = pixelSize(scene.size, scale);
    contents_->pixels.resize(size.count());
    draw(scene, scale, contents_->pixels);
    return {size, contents_->pixels};
}

void PixelCanvas::draw(const views::Scene& scene, double scale, std::span<std::uint32_t> target) {
    const PixelSize size = pixelSize(scene.size, scale);
    if (target.size() != size.count())
        throw std::invalid_argument("the memory to draw into is not as large as the picture");
    const Canvas canvas{{0, 0, size.width, size.height}, target};
    std::fill(target.begin(), target.end(), premultiplied(scene.background));
    Stamper stamper({scale}, canvas.area, contents_->stencils, contents_->fonts);
    for (const Stamp& stamp : stamper.stamps(scene.drawing))
        press(stamp, canvas);
    const views::RoundedRectangle card{.cornerRadius = views::cardCornerRadius};
    cutCorners(canvas, stamper.filled(card, canvas.area, {}).stencil->mask, scale);
}

}  // namespace canvas

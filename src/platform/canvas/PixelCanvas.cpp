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

/// How many pixels a corner reaches along an edge of the card.
int cornerZone(double scale) {
    constexpr double reach = 1.53 * views::cardCornerRadius;
    return static_cast<int>(std::min(std::ceil(reach * scale), 1e6)) + 1;
}

/// Takes away what lies outside the card. Only its corners do, so a smaller card with corners of
/// the same size will do as the mask, which stays in the processor's nearest memory.
void cutCorners(const Canvas& canvas, const Mask& corners) {
    const PixelRect& area = canvas.area;
    const auto width = static_cast<std::size_t>(area.width);
    const auto maskWidth = static_cast<std::size_t>(corners.area.width);
    const std::size_t left = maskWidth / 2;
    const std::size_t right = maskWidth - left;
    for (int y = 0; y < corners.area.height; ++y) {
        const bool isAbove = y < corners.area.height / 2;
        const int cardY = isAbove ? y : area.height - corners.area.height + y;
        std::uint32_t* row = canvas.argb.data() + static_cast<std::size_t>(cardY) * width;
        const std::uint8_t* covered = &corners.coverage[static_cast<std::size_t>(y) * maskWidth];
        keepCovered(row, covered, left);
        keepCovered(row + width - right, covered + left, right);
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
    const int side = 2 * cornerZone(scale);
    const PixelRect corners{0, 0, std::min(side, size.width), std::min(side, size.height)};
    cutCorners(canvas, stamper.filled(card, corners, {}).stencil->mask);
}

}  // namespace canvas

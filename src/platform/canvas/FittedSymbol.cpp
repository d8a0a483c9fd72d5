#include "platform/canvas/FittedSymbol.hpp"

#include "platform/canvas/PixelGrid.hpp"
#include "platform/canvas/Tracing.hpp"

#include <cmath>
#include <variant>

namespace canvas {

namespace {

using views::Point;

// Smaller ones cannot be seen; much larger ones would be beyond what Cairo counts in.
constexpr double smallestEm = 0.0625;  // pixels
constexpr double largestEm = 16384;

/// A sign is made of bars through its middle, each lying or standing, all of one width.
bool isSign(const views::SymbolArtwork& artwork) {
    return artwork.fill.empty();
}

double barWidth(const views::SymbolArtwork& artwork, double em) {
    return std::max(1.0, std::round(artwork.strokes.front().lineWidth * em));
}

/// The nearest coordinate around which a bar of so many whole pixels fills them.
double middleOfBar(double width, double coordinate) {
    const bool odd = std::fmod(width, 2) != 0;
    return odd ? std::floor(coordinate) + 0.5 : std::floor(coordinate + 0.5);
}

Point crispMiddle(const views::SymbolArtwork& artwork, Point middle, double em) {
    if (isSign(artwork)) {
        const double width = barWidth(artwork, em);
        return {middleOfBar(width, middle.x), middleOfBar(width, middle.y)};
    }
    const double half = artwork.bounds.width * em / 2;
    return {std::floor(middle.x - half + 0.5) + half, std::floor(middle.y * 2 + 0.5) / 2};
}

void drawSign(cairo_t* cairo, const FittedSymbol& symbol) {
    const double width = barWidth(*symbol.artwork, symbol.em);
    setPen(cairo, symbolPen(width), 1);
    for (const views::SymbolStroke& bar : symbol.artwork->strokes) {
        const Point first = std::get<views::MoveTo>(bar.path.front()).to;
        const Point last = std::get<views::LineTo>(bar.path.back()).to;
        // Whole pixels from the middle to a cap's centre put the cap's tip on a pixel edge.
        const double dx = std::round((last.x - first.x) / 2 * symbol.em);
        const double dy = std::round((last.y - first.y) / 2 * symbol.em);
        cairo_move_to(cairo, symbol.middle.x - dx, symbol.middle.y - dy);
        cairo_line_to(cairo, symbol.middle.x + dx, symbol.middle.y + dy);
        cairo_stroke(cairo);
    }
}

void drawPicture(cairo_t* cairo, const FittedSymbol& symbol) {
    const views::Size bounds = symbol.artwork->bounds;
    cairo_translate(cairo, symbol.middle.x - bounds.width / 2 * symbol.em,
                    symbol.middle.y - bounds.height / 2 * symbol.em);
    cairo_scale(cairo, symbol.em, symbol.em);
    trace(cairo, symbol.artwork->fill);
    cairo_fill(cairo);
    for (const views::SymbolStroke& line : symbol.artwork->strokes) {
        trace(cairo, line.path);
        setPen(cairo, symbolPen(line.lineWidth), 1);
        cairo_stroke(cairo);
    }
}

}  // namespace

std::optional<FittedSymbol> fitSymbol(const views::DrawSymbol& symbol, double scale) {
    const views::SymbolArtwork* artwork = views::symbolArtwork(symbol.name, symbol.font.weight);
    const double em = symbol.font.size * scale;
    if (!artwork || !isFinite(symbol.frame) || !(em >= smallestEm && em <= largestEm))
        return std::nullopt;
    const Point middle =
        crispMiddle(*artwork,
                    PixelGrid{scale}.pixels({symbol.frame.x + symbol.frame.width / 2,
                                             symbol.frame.y + symbol.frame.height / 2}),
                    em);
    const int x = static_cast<int>(std::floor(middle.x));
    const int y = static_cast<int>(std::floor(middle.y));
    return FittedSymbol{artwork, x, y, {middle.x - x, middle.y - y}, em};
}

void drawSymbol(cairo_t* cairo, const FittedSymbol& symbol) {
    cairo_save(cairo);
    if (isSign(*symbol.artwork))
        drawSign(cairo, symbol);
    else
        drawPicture(cairo, symbol);
    cairo_restore(cairo);
}

}  // namespace canvas

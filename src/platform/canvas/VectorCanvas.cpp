#include "platform/canvas/VectorCanvas.hpp"

#include "platform/canvas/FittedSymbol.hpp"
#include "platform/canvas/Handles.hpp"
#include "platform/canvas/PixelGrid.hpp"
#include "platform/canvas/Polyline.hpp"
#include "platform/canvas/Stencil.hpp"
#include "platform/canvas/TextLine.hpp"
#include "platform/canvas/Tracing.hpp"

#include <cairo.h>

#include <algorithm>
#include <variant>

namespace canvas {

namespace {

void setColor(cairo_t* cairo, const views::Color& color) {
    cairo_set_source_rgba(cairo, color.red, color.green, color.blue, color.alpha);
}

/// A path in points again, after it has been thinned in pixels.
std::vector<views::Point> polyline(const std::vector<views::Point>& points, const PixelGrid& grid) {
    std::vector<views::Point> line = pixelPolyline(points, grid);
    for (views::Point& point : line)
        point = {point.x / grid.scale, point.y / grid.scale};
    return line;
}

struct Player {
    cairo_t* cairo;
    PixelGrid grid;
    FontLibrary& fonts;

    void operator()(const views::FillShape& fill) const {
        if (!isFinite(fill.frame))
            return;
        trace(cairo, views::outline(fill.shape, grid.snapped(fill.frame)));
        setColor(cairo, fill.color);
        cairo_fill(cairo);
    }

    void operator()(const views::StrokeShape& stroke) const {
        const double half = stroke.lineWidth / 2;
        const views::Rect frame = stroke.frame.inset(-half);
        if (!isFinite(frame) || !canStroke({.lineWidth = stroke.lineWidth}, grid.scale))
            return;
        trace(cairo, views::outline(stroke.shape, grid.snapped(frame).inset(half)));
        setPen(cairo, {.lineWidth = stroke.lineWidth}, 1);
        setColor(cairo, stroke.color);
        cairo_stroke(cairo);
    }

    void operator()(const views::FillPath& fill) const {
        trace(cairo, polyline(fill.points, grid));
        cairo_close_path(cairo);
        setColor(cairo, fill.color);
        cairo_fill(cairo);
    }

    void operator()(const views::StrokePath& stroke) const {
        const std::vector<views::Point> points = polyline(stroke.points, grid);
        if (points.size() < 2 || !canStroke(stroke.style, grid.scale))
            return;
        trace(cairo, points);
        setPen(cairo, stroke.style, 1);
        setColor(cairo, stroke.color);
        cairo_stroke(cairo);
    }

    void operator()(const views::DrawText& text) const {
        if (!isFinite(text.frame) || !canDrawText(text.font, grid.scale))
            return;
        double top = text.frame.y;
        for (const std::string& line : text.lines) {
            const auto set = fonts.line(line, text.font, text.tracking);
            cairo_save(cairo);
            cairo_translate(cairo, grid.edge(text.frame.x) / grid.scale,
                            grid.edge(top + text.font.baseline()) / grid.scale);
            traceGlyphs(cairo, *set);
            setColor(cairo, text.color);
            cairo_fill(cairo);
            if (hasColouredGlyphs(*set))
                paintColouredGlyphs(*set, text.color.alpha);
            cairo_restore(cairo);
            top += text.font.lineHeight();
        }
    }

    /// Through pixels, since a document would hold them as coarse as its unit.
    void paintColouredGlyphs(const TextLine& line, double alpha) const {
        const Draw show = [&](cairo_t* target) {
            cairo_scale(target, grid.scale, grid.scale);
            showColouredGlyphs(target, line);
        };
        Picture picture = drawPicture(inkArea(show), show);
        if (picture.area.empty())
            return;
        const SurfaceHandle pixels(cairo_image_surface_create_for_data(
            reinterpret_cast<unsigned char*>(picture.argb.data()), CAIRO_FORMAT_ARGB32,
            picture.area.width, picture.area.height, picture.area.width * 4));
        cairo_scale(cairo, 1 / grid.scale, 1 / grid.scale);
        cairo_set_source_surface(cairo, pixels.get(), picture.area.x, picture.area.y);
        cairo_paint_with_alpha(cairo, alpha);
        // A document's surface holds on to its sources; it copies them when they end.
        cairo_surface_finish(pixels.get());
    }

    void operator()(const views::DrawSymbol& symbol) const {
        const auto fitted = fitSymbol(symbol, grid.scale);
        if (!fitted)
            return;
        cairo_save(cairo);
        cairo_push_group(cairo);
        cairo_scale(cairo, 1 / grid.scale, 1 / grid.scale);
        cairo_translate(cairo, fitted->x, fitted->y);
        cairo_set_source_rgb(cairo, symbol.color.red, symbol.color.green, symbol.color.blue);
        drawSymbol(cairo, *fitted);
        cairo_pop_group_to_source(cairo);
        cairo_paint_with_alpha(cairo, symbol.color.alpha);
        cairo_restore(cairo);
    }

    void operator()(const views::Group& group) const {
        if (!(group.opacity > 0))
            return;
        cairo_push_group(cairo);
        play(group.drawing);
        cairo_pop_group_to_source(cairo);
        cairo_paint_with_alpha(cairo, std::min(group.opacity, 1.0));
    }

    void play(const std::vector<views::Command>& drawing) const {
        for (const views::Command& command : drawing)
            std::visit(*this, command.alternatives());
    }
};

}  // namespace

void drawScene(_cairo* cairo, const views::Scene& scene, double scale, FontLibrary& fonts) {
    const PixelGrid grid{scale};
    const views::Rect card = grid.snapped({0, 0, scene.size.width, scene.size.height});
    cairo_save(cairo);
    // Drawn as a whole and then cut: cut one by one, what lies on each other at the card's edge
    // would cover more of it than the card does.
    cairo_push_group(cairo);
    setColor(cairo, scene.background);
    cairo_paint(cairo);
    Player{cairo, grid, fonts}.play(scene.drawing);
    cairo_pop_group_to_source(cairo);
    trace(cairo,
          views::outline(views::RoundedRectangle{.cornerRadius = views::cardCornerRadius}, card));
    cairo_clip(cairo);
    cairo_paint(cairo);
    cairo_restore(cairo);
}

}  // namespace canvas

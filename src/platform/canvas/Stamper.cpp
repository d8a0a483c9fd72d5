#include "platform/canvas/Stamper.hpp"

#include "platform/canvas/FittedSymbol.hpp"
#include "platform/canvas/Key.hpp"
#include "platform/canvas/Polyline.hpp"
#include "platform/canvas/TextLine.hpp"
#include "platform/canvas/Tracing.hpp"

#include <algorithm>
#include <cmath>
#include <utility>
#include <variant>

namespace canvas {

namespace {

// A stencil of more pixels is drawn anew each time, and only where it is seen.
constexpr std::size_t largestKept = 1 << 20;

enum class Kind : char { filledShape, border, filledPath, line, text, symbol };

double cornerRadius(const views::Shape& shape) {
    const auto* rounded = std::get_if<views::RoundedRectangle>(&shape);
    return rounded ? rounded->cornerRadius : 0;
}

views::Shape scaled(const views::Shape& shape, double scale) {
    if (std::holds_alternative<views::RoundedRectangle>(shape))
        return views::RoundedRectangle{.cornerRadius = cornerRadius(shape) * scale};
    return shape;
}

/// A path in pixels, counted from the whole pixel that they begin at.
struct PixelPoints {
    int x = 0;
    int y = 0;
    std::vector<views::Point> points;

    PixelPoints(const std::vector<views::Point>& cardPoints, const PixelGrid& grid)
        : points(pixelPolyline(cardPoints, grid)) {
        if (points.empty())
            return;
        double left = points.front().x;
        double top = points.front().y;
        for (const views::Point& point : points) {
            left = std::min(left, point.x);
            top = std::min(top, point.y);
        }
        x = static_cast<int>(std::floor(left));
        y = static_cast<int>(std::floor(top));
        for (views::Point& point : points)
            point = {point.x - x, point.y - y};
    }

    void append(Key& key) const {
        for (const views::Point& point : points)
            key << point.x << point.y;
    }
};

/// What a stencil is drawn with: the parts that take its colour, and those with their own.
struct Ink {
    Draw colored;
    Draw pictures = nullptr;
};

Ink ink(const views::DrawText& text, const std::string& line, double scale, FontLibrary& fonts) {
    const auto set = fonts.line(line, text.font, text.tracking);
    Ink result;
    result.colored = [set, scale](cairo_t* cairo) {
        cairo_scale(cairo, scale, scale);
        traceGlyphs(cairo, *set);
        cairo_fill(cairo);
    };
    if (hasColouredGlyphs(*set))
        result.pictures = [set, scale](cairo_t* cairo) {
            cairo_scale(cairo, scale, scale);
            showColouredGlyphs(cairo, *set);
        };
    return result;
}

}  // namespace

/// Makes the stamps of commands one after another.
struct Stamper::Visitor {
    Stamper& stamper;
    std::vector<Stamp>& made;

    /// Adds a stamp of the stencil under the key, which is made with what `makeInk()` returns.
    template <class MakeInk>
    void add(const Key& key, int x, int y, const views::Color& color, MakeInk makeInk) {
        std::shared_ptr<const Stencil> stencil = stamper.stencils_.find(key.bytes());
        if (!stencil)
            stencil = make(key, stamper.visible_.movedBy(-x, -y), makeInk());
        made.push_back({std::move(stencil), x, y, color});
    }

    std::shared_ptr<const Stencil> make(const Key& key, const PixelRect& visible, const Ink& ink) {
        PixelRect colored = inkArea(ink.colored);
        PixelRect pictures = ink.pictures ? inkArea(ink.pictures) : PixelRect{};
        const bool kept = colored.count() + pictures.count() <= largestKept;
        if (!kept) {
            colored = shared(colored, visible);
            pictures = shared(pictures, visible);
        }
        auto stencil = std::make_shared<const Stencil>(
            Stencil{drawMask(colored, ink.colored), drawPicture(pictures, ink.pictures)});
        if (kept)
            stamper.stencils_.keep(key.bytes(), stencil, stencil->bytes());
        return stencil;
    }

    void add(const views::Shape& shape, const PixelRect& frame, const views::Color& color) {
        const double scale = stamper.grid_.scale;
        Key key;
        key << Kind::filledShape << shape.index() << cornerRadius(shape) * scale << frame.width
            << frame.height;
        add(key, frame.x, frame.y, color, [&]() -> Ink {
            const views::Rect local{0, 0, static_cast<double>(frame.width),
                                    static_cast<double>(frame.height)};
            return {[path = views::outline(scaled(shape, scale), local)](cairo_t* cairo) {
                trace(cairo, path);
                cairo_fill(cairo);
            }};
        });
    }

    void operator()(const views::FillShape& fill) {
        if (isFinite(fill.frame))
            add(fill.shape, stamper.grid_.edges(fill.frame), fill.color);
    }

    void operator()(const views::StrokeShape& stroke) {
        const double scale = stamper.grid_.scale;
        const views::StrokeStyle style{.lineWidth = stroke.lineWidth};
        const views::Rect cardFrame = stroke.frame.inset(-stroke.lineWidth / 2);
        if (!isFinite(cardFrame) || !canStroke(style, scale))
            return;
        const PixelRect frame = stamper.grid_.edges(cardFrame);
        Key key;
        key << Kind::border << stroke.shape.index() << cornerRadius(stroke.shape) * scale
            << frame.width << frame.height << stroke.lineWidth * scale;
        add(key, frame.x, frame.y, stroke.color, [&]() -> Ink {
            const views::Rect local{0, 0, static_cast<double>(frame.width),
                                    static_cast<double>(frame.height)};
            const views::Rect line = local.inset(stroke.lineWidth * scale / 2);
            return {[path = views::outline(scaled(stroke.shape, scale), line), style,
                     scale](cairo_t* cairo) {
                trace(cairo, path);
                setPen(cairo, style, scale);
                cairo_stroke(cairo);
            }};
        });
    }

    void operator()(const views::FillPath& fill) {
        const PixelPoints pixels(fill.points, stamper.grid_);
        Key key;
        key << Kind::filledPath;
        pixels.append(key);
        add(key, pixels.x, pixels.y, fill.color, [&]() -> Ink {
            return {[points = pixels.points](cairo_t* cairo) {
                trace(cairo, points);
                cairo_fill(cairo);
            }};
        });
    }

    void operator()(const views::StrokePath& stroke) {
        const double scale = stamper.grid_.scale;
        const PixelPoints pixels(stroke.points, stamper.grid_);
        const views::StrokeStyle& style = stroke.style;
        if (pixels.points.size() < 2 || !canStroke(style, scale))
            return;
        Key key;
        key << Kind::line << style.lineWidth * scale << style.lineCap << style.lineJoin
            << style.miterLimit;
        pixels.append(key);
        add(key, pixels.x, pixels.y, stroke.color, [&]() -> Ink {
            return {[points = pixels.points, style, scale](cairo_t* cairo) {
                trace(cairo, points);
                setPen(cairo, style, scale);
                cairo_stroke(cairo);
            }};
        });
    }

    void operator()(const views::DrawText& text) {
        const double scale = stamper.grid_.scale;
        if (!isFinite(text.frame) || !canDrawText(text.font, scale))
            return;
        const int x = stamper.grid_.edge(text.frame.x);
        double baseline = text.frame.y + text.font.baseline();
        for (const std::string& line : text.lines) {
            const int y = stamper.grid_.edge(baseline);
            baseline += text.font.lineHeight();
            Key key;
            key << Kind::text << scale << text.font.size << text.font.weight << text.font.design
                << text.tracking << line;
            add(key, x, y, text.color, [&] { return ink(text, line, scale, stamper.fonts_); });
        }
    }

    void operator()(const views::DrawSymbol& symbol) {
        const auto fitted = fitSymbol(symbol, stamper.grid_.scale);
        if (!fitted)
            return;
        Key key;
        key << Kind::symbol << fitted->em << symbol.font.weight << fitted->middle.x
            << fitted->middle.y << symbol.name;
        add(key, fitted->x, fitted->y, symbol.color, [&fitted]() -> Ink {
            return {[symbol = *fitted](cairo_t* cairo) { drawSymbol(cairo, symbol); }};
        });
    }

    void operator()(const views::Group& group) {
        if (!(group.opacity > 0))
            return;
        const std::vector<Stamp> inside = stamper.stamps(group.drawing);
        PixelRect area;
        for (const Stamp& stamp : inside)
            area = around(area, shared(stamp.area(), stamper.visible_));
        auto composed = std::make_shared<Stencil>();
        composed->picture = {area, std::vector<std::uint32_t>(area.count())};
        for (const Stamp& stamp : inside)
            press(stamp, {area, composed->picture.argb});
        made.push_back({std::move(composed), 0, 0, {0, 0, 0, group.opacity}});
    }
};

std::vector<Stamp> Stamper::stamps(const std::vector<views::Command>& drawing) {
    std::vector<Stamp> made;
    for (const views::Command& command : drawing)
        std::visit(Visitor{*this, made}, command.alternatives());
    return made;
}

Stamp Stamper::filled(const views::Shape& shape,
                      const PixelRect& frame,
                      const views::Color& color) {
    std::vector<Stamp> made;
    Visitor{*this, made}.add(shape, frame, color);
    return made.front();
}

}  // namespace canvas

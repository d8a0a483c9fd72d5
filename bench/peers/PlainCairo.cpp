#include "peers/PlainCairo.hpp"

#include "platform/views/shapes/Outline.hpp"
#include "platform/views/symbols/SymbolArtwork.hpp"

#include <pango/pangocairo.h>

#include <cmath>
#include <variant>

namespace peers {

namespace {

using namespace views;

struct PathTracer {
    cairo_t* cairo;
    void operator()(const MoveTo& e) const { cairo_move_to(cairo, e.to.x, e.to.y); }
    void operator()(const LineTo& e) const { cairo_line_to(cairo, e.to.x, e.to.y); }
    void operator()(const CurveTo& e) const {
        cairo_curve_to(cairo, e.control1.x, e.control1.y, e.control2.x, e.control2.y, e.to.x,
                       e.to.y);
    }
    void operator()(const ClosePath&) const { cairo_close_path(cairo); }
};

void trace(cairo_t* cairo, const Outline& path) {
    for (const OutlineElement& element : path)
        std::visit(PathTracer{cairo}, element);
}

void setColor(cairo_t* cairo, const Color& color) {
    cairo_set_source_rgba(cairo, color.red, color.green, color.blue, color.alpha);
}

struct Painter {
    cairo_t* cairo;

    void operator()(const FillShape& fill) const {
        setColor(cairo, fill.color);
        trace(cairo, outline(fill.shape, fill.frame));
        cairo_fill(cairo);
    }
    void operator()(const StrokeShape& stroke) const {
        setColor(cairo, stroke.color);
        cairo_set_line_width(cairo, stroke.lineWidth);
        trace(cairo, outline(stroke.shape, stroke.frame));
        cairo_stroke(cairo);
    }
    void polyline(const std::vector<Point>& points) const {
        for (const Point& point : points)
            cairo_line_to(cairo, point.x, point.y);
    }
    void operator()(const FillPath& fill) const {
        setColor(cairo, fill.color);
        polyline(fill.points);
        cairo_fill(cairo);
    }
    void operator()(const StrokePath& stroke) const {
        setColor(cairo, stroke.color);
        cairo_set_line_width(cairo, stroke.style.lineWidth);
        cairo_set_line_cap(cairo, CAIRO_LINE_CAP_ROUND);
        cairo_set_line_join(cairo, CAIRO_LINE_JOIN_ROUND);
        polyline(stroke.points);
        cairo_stroke(cairo);
    }
    void operator()(const DrawText& text) const {
        setColor(cairo, text.color);
        double top = text.frame.y;
        for (const std::string& line : text.lines) {
            PangoLayout* layout = pango_cairo_create_layout(cairo);
            PangoFontDescription* description = pango_font_description_new();
            pango_font_description_set_family(
                description, text.font.design == FontDesign::standard ? "Inter" : "JetBrains Mono");
            pango_font_description_set_weight(description, text.font.weight == FontWeight::semibold
                                                               ? PANGO_WEIGHT_SEMIBOLD
                                                               : PANGO_WEIGHT_NORMAL);
            pango_font_description_set_absolute_size(description, text.font.size * PANGO_SCALE);
            pango_layout_set_font_description(layout, description);
            pango_font_description_free(description);
            if (text.tracking != 0) {
                PangoAttrList* attributes = pango_attr_list_new();
                pango_attr_list_insert(
                    attributes,
                    pango_attr_letter_spacing_new(static_cast<int>(text.tracking * PANGO_SCALE)));
                pango_layout_set_attributes(layout, attributes);
                pango_attr_list_unref(attributes);
            }
            pango_layout_set_text(layout, line.data(), static_cast<int>(line.size()));
            cairo_move_to(cairo, text.frame.x, top);
            pango_cairo_show_layout(cairo, layout);
            g_object_unref(layout);
            top += text.font.lineHeight();
        }
    }
    void operator()(const DrawSymbol& symbol) const {
        const SymbolArtwork* artwork = symbolArtwork(symbol.name, symbol.font.weight);
        setColor(cairo, symbol.color);
        cairo_save(cairo);
        cairo_translate(cairo, symbol.frame.x, symbol.frame.y);
        cairo_scale(cairo, symbol.font.size, symbol.font.size);
        trace(cairo, artwork->fill);
        cairo_fill(cairo);
        cairo_set_line_cap(cairo, CAIRO_LINE_CAP_ROUND);
        for (const SymbolStroke& stroke : artwork->strokes) {
            cairo_set_line_width(cairo, stroke.lineWidth);
            trace(cairo, stroke.path);
            cairo_stroke(cairo);
        }
        cairo_restore(cairo);
    }
    void operator()(const Group& group) const {
        cairo_push_group(cairo);
        play(group.drawing);
        cairo_pop_group_to_source(cairo);
        cairo_paint_with_alpha(cairo, group.opacity);
    }
    void play(const std::vector<Command>& drawing) const {
        for (const Command& command : drawing)
            std::visit(*this, command.alternatives());
    }
};

}  // namespace

void drawPlainly(cairo_t* cairo, const Scene& scene, double scale) {
    cairo_save(cairo);
    cairo_set_operator(cairo, CAIRO_OPERATOR_CLEAR);
    cairo_paint(cairo);
    cairo_set_operator(cairo, CAIRO_OPERATOR_OVER);
    cairo_scale(cairo, scale, scale);
    trace(cairo, outline(RoundedRectangle{.cornerRadius = cardCornerRadius},
                         {0, 0, scene.size.width, scene.size.height}));
    setColor(cairo, scene.background);
    cairo_fill(cairo);
    Painter{cairo}.play(scene.drawing);
    cairo_restore(cairo);
}

cairo_surface_t* plainSurface(const Scene& scene, double scale) {
    return cairo_image_surface_create(CAIRO_FORMAT_ARGB32,
                                      static_cast<int>(std::lround(scene.size.width * scale)),
                                      static_cast<int>(std::lround(scene.size.height * scale)));
}

}  // namespace peers

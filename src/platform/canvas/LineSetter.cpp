#include "platform/canvas/LineSetter.hpp"

#include "platform/canvas/ClusterAdvances.hpp"
#include "platform/canvas/FontFiles.hpp"

#include <pango/pangocairo.h>
#include <pango/pangofc-font.h>

#include <cstring>
#include <utility>

namespace canvas {

namespace {

/// In every font, what stands for a character that it does not have.
constexpr unsigned long missingGlyph = 0;

/// How a face's stand-in is made to measure like the face itself.
struct Fitting {
    double size;      // of the requested size
    double tracking;  // em of the requested size, after every glyph
};

// The capitals and small letters of the stand-in come out as high as the system face's, its widths
// close; the monospaced one's glyphs, 0.6 em wide by themselves, exactly as wide.
constexpr Fitting standardFitting{0.97, -0.015};
constexpr Fitting monospacedFitting{0.6181640625 / 0.6, 0};

const Fitting& fitting(views::FontDesign design) {
    return design == views::FontDesign::standard ? standardFitting : monospacedFitting;
}

PangoWeight pangoWeight(views::FontWeight weight) {
    switch (weight) {
        case views::FontWeight::regular:
            return PANGO_WEIGHT_NORMAL;
        case views::FontWeight::medium:
            return PANGO_WEIGHT_MEDIUM;
        case views::FontWeight::semibold:
            return PANGO_WEIGHT_SEMIBOLD;
        case views::FontWeight::bold:
            return PANGO_WEIGHT_BOLD;
    }
    return PANGO_WEIGHT_NORMAL;
}

DescriptionHandle description(const views::Font& font) {
    const bool standard = font.design == views::FontDesign::standard;
    const std::string families =
        std::string(standInFamily(font.design)) + (standard ? ",sans-serif" : ",monospace");
    DescriptionHandle result(pango_font_description_new());
    pango_font_description_set_family(result.get(), families.c_str());
    pango_font_description_set_weight(result.get(), pangoWeight(font.weight));
    pango_font_description_set_absolute_size(result.get(),
                                             font.size * fitting(font.design).size * PANGO_SCALE);
    return result;
}

/// The pieces of a text that are each in one font and direction, in the order they are seen.
class Items {
  public:
    Items(const FontSource& source, const std::string& utf8, const views::Font& font) {
        const int length = static_cast<int>(utf8.size());
        const AttributesHandle attributes(pango_attr_list_new());
        pango_attr_list_insert(attributes.get(), pango_attr_font_desc_new(description(font).get()));
        GList* logical =
            pango_itemize_with_base_dir(source.context(), PANGO_DIRECTION_WEAK_LTR, utf8.data(), 0,
                                        length, attributes.get(), nullptr);
        visual_ = pango_reorder_items(logical);
        g_list_free(logical);
    }
    ~Items() {
        g_list_free_full(visual_,
                         [](gpointer item) { pango_item_free(static_cast<PangoItem*>(item)); });
    }
    Items(const Items&) = delete;
    Items& operator=(const Items&) = delete;

    template <class Use>
    void forEach(Use use) const {
        for (GList* link = visual_; link; link = link->next)
            use(*static_cast<PangoItem*>(link->data));
    }

  private:
    GList* visual_;
};

bool isStandIn(PangoFont* font, views::FontDesign design) {
    const DescriptionHandle actual(pango_font_describe(font));
    return std::strcmp(pango_font_description_get_family(actual.get()), standInFamily(design)) == 0;
}

bool isColoured(PangoFont* font) {
    FcBool coloured = FcFalse;
    return FcPatternGetBool(pango_fc_font_get_pattern(PANGO_FC_FONT(font)), FC_COLOR, 0,
                            &coloured) == FcResultMatch &&
           coloured;
}

/// Ligatures and arrows made of several characters are not what a name says, and cannot be tracked.
void turnLigaturesOff(PangoItem& item) {
    PangoAttribute* features = pango_attr_font_features_new("liga=0, clig=0, calt=0");
    item.analysis.extra_attrs = g_slist_prepend(item.analysis.extra_attrs, features);
}

class Setter {
  public:
    Setter(const DrawableText& text, const views::Font& font, double tracking)
        : text_(text), font_(font), tracking_(tracking), advances_(text) {}

    void append(PangoItem& item) {
        // Without any font at all there is not even a box to show for a character.
        if (!item.analysis.font) {
            set_.complete = false;
            return;
        }
        const bool standIn = isStandIn(item.analysis.font, font_.design);
        if (standIn)
            turnLigaturesOff(item);
        GlyphsHandle glyphs(pango_glyph_string_new());
        pango_shape_full(text_.utf8.data() + item.offset, item.length, text_.utf8.data(),
                         static_cast<int>(text_.utf8.size()), &item.analysis, glyphs.get());
        const double tracking =
            tracking_ +
            (standIn ? font_.sizeTracking() + fitting(font_.design).tracking * font_.size : 0);
        appendGlyphs(item, *glyphs, tracking);
    }

    LineSet finish() {
        set_.line.clusters = advances_.clusters();
        return std::move(set_);
    }

  private:
    void appendGlyphs(const PangoItem& item, const PangoGlyphString& glyphs, double tracking) {
        cairo_scaled_font_t* scaled =
            pango_cairo_font_get_scaled_font(PANGO_CAIRO_FONT(item.analysis.font));
        TextRun run{ScaledFontHandle(cairo_scaled_font_reference(scaled)),
                    isColoured(item.analysis.font),
                    {}};
        double cluster = 0;  // advance of the cluster so far
        for (int i = 0; i < glyphs.num_glyphs; ++i) {
            const PangoGlyphInfo& glyph = glyphs.glyphs[i];
            appendGlyph(run, glyph);
            double advance =
                isUnknown(glyph) ? advanceOfMissing(scaled) : inPoints(glyph.geometry.width);
            cluster += advance;
            const bool lastOfCluster =
                i + 1 == glyphs.num_glyphs || glyphs.log_clusters[i + 1] != glyphs.log_clusters[i];
            if (lastOfCluster) {
                // What has no width of its own, such as a joiner, is not a glyph to be tracked.
                if (cluster > 0)
                    advance += tracking;
                cluster = 0;
            }
            set_.line.width += advance;
            const int begin = item.offset + glyphs.log_clusters[i];
            advances_.add(static_cast<std::size_t>(begin), advance);
        }
        if (!run.glyphs.empty())
            set_.line.runs.push_back(std::move(run));
    }

    void appendGlyph(TextRun& run, const PangoGlyphInfo& glyph) {
        if (glyph.glyph == PANGO_GLYPH_EMPTY)
            return;
        if (isUnknown(glyph))
            set_.complete = false;
        run.glyphs.push_back({isUnknown(glyph) ? missingGlyph : glyph.glyph,
                              set_.line.width + inPoints(glyph.geometry.x_offset),
                              inPoints(glyph.geometry.y_offset)});
    }

    static bool isUnknown(const PangoGlyphInfo& glyph) {
        return (glyph.glyph & PANGO_GLYPH_UNKNOWN_FLAG) != 0;
    }

    /// In points. Pango's own is that of a box with a number in it.
    static double advanceOfMissing(cairo_scaled_font_t* font) {
        const cairo_glyph_t glyph{missingGlyph, 0, 0};
        cairo_text_extents_t extents{};
        cairo_scaled_font_glyph_extents(font, &glyph, 1, &extents);
        return extents.x_advance;
    }

    static double inPoints(PangoGlyphUnit units) {
        return static_cast<double>(units) / PANGO_SCALE;
    }

    const DrawableText& text_;
    const views::Font& font_;
    double tracking_;
    ClusterAdvances advances_;
    LineSet set_;
};

}  // namespace

LineSet setLine(const FontSource& source,
                const DrawableText& text,
                const views::Font& font,
                double tracking) {
    Setter setter(text, font, tracking);
    if (!text.utf8.empty())
        Items(source, text.utf8, font).forEach([&](PangoItem& item) { setter.append(item); });
    return setter.finish();
}

}  // namespace canvas

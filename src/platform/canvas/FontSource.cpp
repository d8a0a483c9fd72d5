#include "platform/canvas/FontSource.hpp"

#include <pango/pangocairo.h>
#include <pango/pangofc-fontmap.h>

#include <stdexcept>
#include <utility>

namespace canvas {

namespace {

FcConfigHandle made(FcConfig* configuration) {
    if (!configuration)
        throw std::runtime_error("the font configuration cannot be made");
    return FcConfigHandle(configuration);
}

FontOptionsHandle unhinted() {
    FontOptionsHandle options(cairo_font_options_create());
    cairo_font_options_set_hint_style(options.get(), CAIRO_HINT_STYLE_NONE);
    cairo_font_options_set_hint_metrics(options.get(), CAIRO_HINT_METRICS_OFF);
    cairo_font_options_set_antialias(options.get(), CAIRO_ANTIALIAS_GRAY);
    return options;
}

}  // namespace

FontSource::FontSource(FcConfigHandle configuration)
    : configuration_(std::move(configuration)),
      map_(pango_cairo_font_map_new_for_font_type(CAIRO_FONT_TYPE_FT)) {
    if (!map_)
        throw std::runtime_error("Pango was built without FreeType");
    pango_fc_font_map_set_config(PANGO_FC_FONT_MAP(map_.get()), configuration_.get());
    context_.reset(pango_font_map_create_context(map_.get()));
    pango_context_set_round_glyph_positions(context_.get(), FALSE);
    pango_cairo_context_set_font_options(context_.get(), unhinted().get());
}

FontSource FontSource::only(const std::string& file) {
    FcConfigHandle configuration = made(FcConfigCreate());
    FcConfigAppFontAddFile(configuration.get(), reinterpret_cast<const FcChar8*>(file.c_str()));
    // The first font map makes sure on a thread of its own that the process has a current
    // configuration, and would read the system's. This one stands in until the map has looked.
    FcConfigSetCurrent(configuration.get());
    FontSource source(std::move(configuration));
    PangoFontFamily** families = nullptr;
    int count = 0;
    pango_font_map_list_families(source.map_.get(), &families, &count);  // waits for the thread
    g_free(families);
    // Whoever else uses fonts in this process gets the system's configuration.
    FcConfigSetCurrent(nullptr);
    return source;
}

FontSource FontSource::system() {
    return FontSource(made(FcInitLoadConfigAndFonts()));
}

}  // namespace canvas

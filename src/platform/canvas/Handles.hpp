#pragma once

#include <cairo.h>
#include <fontconfig/fontconfig.h>
#include <pango/pango.h>

#include <memory>

namespace canvas {

template <auto release>
struct Release {
    void operator()(auto* object) const { release(object); }
};

using CairoHandle = std::unique_ptr<cairo_t, Release<cairo_destroy>>;
using SurfaceHandle = std::unique_ptr<cairo_surface_t, Release<cairo_surface_destroy>>;
using ScaledFontHandle = std::unique_ptr<cairo_scaled_font_t, Release<cairo_scaled_font_destroy>>;
using FontOptionsHandle =
    std::unique_ptr<cairo_font_options_t, Release<cairo_font_options_destroy>>;
using FcConfigHandle = std::unique_ptr<FcConfig, Release<FcConfigDestroy>>;
using FontMapHandle = std::unique_ptr<PangoFontMap, Release<g_object_unref>>;
using ContextHandle = std::unique_ptr<PangoContext, Release<g_object_unref>>;
using DescriptionHandle =
    std::unique_ptr<PangoFontDescription, Release<pango_font_description_free>>;
using AttributesHandle = std::unique_ptr<PangoAttrList, Release<pango_attr_list_unref>>;
using GlyphsHandle = std::unique_ptr<PangoGlyphString, Release<pango_glyph_string_free>>;

}  // namespace canvas

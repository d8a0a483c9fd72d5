#include "platform/canvas/SVG.hpp"

#include "platform/canvas/Handles.hpp"
#include "platform/canvas/Pixels.hpp"
#include "platform/canvas/VectorCanvas.hpp"

#include <cairo-svg.h>

#include <stdexcept>

namespace canvas {

namespace {

cairo_status_t append(void* document, const unsigned char* bytes, unsigned int count) {
    static_cast<std::string*>(document)->append(reinterpret_cast<const char*>(bytes), count);
    return CAIRO_STATUS_SUCCESS;
}

}  // namespace

std::string writeSVG(const views::Scene& scene, double scale, FontLibrary& fonts) {
    pixelSize(scene.size, scale);
    std::string document;
    const SurfaceHandle surface(cairo_svg_surface_create_for_stream(
        append, &document, scene.size.width, scene.size.height));
    cairo_svg_surface_set_document_unit(surface.get(), CAIRO_SVG_UNIT_PX);
    const CairoHandle cairo(cairo_create(surface.get()));
    drawScene(cairo.get(), scene, scale, fonts);
    cairo_surface_finish(surface.get());
    for (const cairo_status_t status :
         {cairo_status(cairo.get()), cairo_surface_status(surface.get())}) {
        if (status != CAIRO_STATUS_SUCCESS)
            throw std::runtime_error(std::string("no SVG: ") + cairo_status_to_string(status));
    }
    return document;
}

}  // namespace canvas

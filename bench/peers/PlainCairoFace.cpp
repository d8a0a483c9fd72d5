// A face, "volume" or "whatIsOn", to a PNG file in a process of its own, as a plain Cairo and Pango
// program makes it.

#include "peers/PlainCairo.hpp"
#include "support/HandMadeScenes.hpp"

#include <string_view>

int main(int count, char** arguments) {
    if (count != 3)
        return 2;
    const bool volume = std::string_view(arguments[1]) == "volume";
    const views::Scene scene = volume ? scenes::volume() : scenes::whatIsOn();
    cairo_surface_t* surface = peers::plainSurface(scene, 2);
    cairo_t* cairo = cairo_create(surface);
    peers::drawPlainly(cairo, scene, 2);
    const cairo_status_t status = cairo_surface_write_to_png(surface, arguments[2]);
    cairo_destroy(cairo);
    cairo_surface_destroy(surface);
    return status == CAIRO_STATUS_SUCCESS ? 0 : 1;
}

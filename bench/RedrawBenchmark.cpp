// A whole face drawn again at two pixels per point, everything warm: the pixel canvas against plain
// Cairo and Pango on a kept surface. Two faces alternate, so that no picture is drawn twice in a
// row.

#include "Example.hpp"
#include "peers/PlainCairo.hpp"
#include "platform/canvas/PixelCanvas.hpp"

#include <benchmark/benchmark.h>

#include <array>

namespace {

constexpr double scale = 2;

using Faces = std::array<views::Scene, 2>;

Faces volumeFaces() {
    nurva::EstadoParaWidgets snapshot = example::snapshot();
    // No button is dimmed, hence no group: the plain program would pay for a whole surface each.
    for (nurva::AppCorta& app : snapshot.apps) {
        app.silenciada = false;
        app.nivel = 0.45;
    }
    Faces faces{example::volume(snapshot)};
    snapshot.apps.front().nivel = 0.55;
    faces[1] = example::volume(snapshot);
    return faces;
}

Faces whatIsOnFaces() {
    nurva::EstadoParaWidgets snapshot = example::snapshot();
    Faces faces{example::whatIsOn(snapshot)};
    snapshot.prendido = false;
    faces[1] = example::whatIsOn(snapshot);
    return faces;
}

void redrawWithPixelCanvas(benchmark::State& state, const Faces& faces) {
    canvas::FontLibrary fonts;
    canvas::PixelCanvas canvas(fonts);
    std::size_t turn = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(canvas.draw(faces[turn++ % 2], scale).argb.data());
}

void redrawPlainly(benchmark::State& state, const Faces& faces) {
    cairo_surface_t* surface = peers::plainSurface(faces[0], scale);
    cairo_t* cairo = cairo_create(surface);
    std::size_t turn = 0;
    for (auto _ : state) {
        peers::drawPlainly(cairo, faces[turn++ % 2], scale);
        cairo_surface_flush(surface);
    }
    cairo_destroy(cairo);
    cairo_surface_destroy(surface);
}

BENCHMARK_CAPTURE(redrawWithPixelCanvas, volume, volumeFaces());
BENCHMARK_CAPTURE(redrawPlainly, volume, volumeFaces());
BENCHMARK_CAPTURE(redrawWithPixelCanvas, whatIsOn, whatIsOnFaces());
BENCHMARK_CAPTURE(redrawPlainly, whatIsOn, whatIsOnFaces());

}  // namespace

BENCHMARK_MAIN();

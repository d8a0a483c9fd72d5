// Faces at their extremes, from a snapshot to pixels, each by a canvas that has drawn nothing yet.
// What stands in place of a peer is a second.

#include "Example.hpp"
#include "platform/canvas/PixelCanvas.hpp"

#include <benchmark/benchmark.h>

#include <string>
#include <string_view>

namespace {

constexpr std::size_t million = 1000000;

std::string repeated(std::string_view piece, std::size_t times) {
    std::string text;
    for (std::size_t i = 0; i < times; ++i)
        text += piece;
    return text;
}

nurva::EstadoParaWidgets applications() {
    nurva::EstadoParaWidgets snapshot = example::snapshot();
    const nurva::AppCorta app = snapshot.apps.front();
    snapshot.apps.assign(10000, app);
    for (std::size_t i = 0; i < snapshot.apps.size(); ++i)
        snapshot.apps[i].nombre = std::to_string(i);
    return snapshot;
}

nurva::EstadoParaWidgets texts(const std::string& text) {
    nurva::EstadoParaWidgets snapshot = example::snapshot();
    for (nurva::AppCorta& app : snapshot.apps)
        app.nombre = text;
    snapshot.perfil = snapshot.razon = snapshot.salida = text;
    return snapshot;
}

nurva::EstadoParaWidgets gains() {
    nurva::EstadoParaWidgets snapshot = example::snapshot();
    snapshot.curva.clear();
    for (std::size_t i = 0; i < million; ++i)
        snapshot.curva.push_back(static_cast<double>(i * 7919 % 2400) / 100 - 12);
    return snapshot;
}

template <class LayOut>
void face(benchmark::State& state, const LayOut& layOut, const nurva::EstadoParaWidgets& snapshot) {
    for (auto _ : state) {
        canvas::FontLibrary fonts;
        canvas::PixelCanvas canvas(fonts);
        benchmark::DoNotOptimize(canvas.draw(layOut(snapshot), 2).argb.data());
    }
}

const auto letters = texts(repeated("m", million));
const auto marks = texts("a" + repeated("\u0301", million / 2));

BENCHMARK_CAPTURE(face, applications, example::volume, applications())
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(face, longNames, example::volume, letters)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(face, longTexts, example::whatIsOn, letters)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(face, marksInNames, example::volume, marks)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(face, marksInTexts, example::whatIsOn, marks)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(face, gains, example::whatIsOn, gains())->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();

// From a snapshot to a face laid out, text sizes known: a view and its scene against the same face
// as Qt widgets with their final geometry. Both are made from the snapshot alone, as after every
// reload; taking Qt's widgets down again does not count.

#include "Example.hpp"
#include "peers/QtFaces.hpp"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <memory>

namespace {

template <class LayOut>
void viewAndScene(benchmark::State& state, const LayOut& layOut) {
    const nurva::EstadoParaWidgets snapshot = example::snapshot();
    if (layOut(snapshot).drawing.empty())
        state.SkipWithError("the face is empty");
    for (auto _ : state)
        benchmark::DoNotOptimize(layOut(snapshot).drawing.data());
}

template <class Make>
void qtWidgets(benchmark::State& state, const Make& make) {
    const nurva::EstadoParaWidgets snapshot = example::snapshot();
    std::unique_ptr<QWidget> face = make(snapshot);
    if (!peers::isLaidOut(*face))
        state.SkipWithError("a part of the face has no place on its card");
    for (auto _ : state) {
        state.PauseTiming();
        face.reset();
        state.ResumeTiming();
        face = make(snapshot);
    }
}

std::unique_ptr<QWidget> volumeFace(const nurva::EstadoParaWidgets& snapshot) {
    static const peers::Requests requests{[](const QString&, double) {},
                                          [](const QString&, bool) {}};
    return peers::volumeFace(snapshot, requests);
}

BENCHMARK_CAPTURE(viewAndScene, volume, example::volume);
BENCHMARK_CAPTURE(qtWidgets, volume, volumeFace);
BENCHMARK_CAPTURE(viewAndScene, whatIsOn, example::whatIsOn);
BENCHMARK_CAPTURE(qtWidgets, whatIsOn, peers::whatIsOnFace);

}  // namespace

int main(int count, char** arguments) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(count, arguments);
    benchmark::Initialize(&count, arguments);
    if (benchmark::ReportUnrecognizedArguments(count, arguments))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}

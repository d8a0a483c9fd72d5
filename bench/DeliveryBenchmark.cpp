// From the press of a control until another process has read the request: the action performed,
// hence the request encoded, written and announced, against the same with GLib. Everybody, the bus
// too, shares one processor, and the file lies on the file system of the build folder.

#include "peers/GLibDelivery.hpp"
#include "peticiones/Pedir.hpp"
#include "peticiones/PonerVolumen.hpp"
#include "platform/foundation/SystemClock.hpp"
#include "platform/foundation/files/DefaultFileManager.hpp"
#include "platform/foundation/files/WriteFile.hpp"
#include "platform/foundation/notifications/SessionBusNotificationCenter.hpp"
#include "support/ChildProcess.hpp"
#include "support/PrivateSessionBus.hpp"

#include <benchmark/benchmark.h>
#include <sched.h>

#include <filesystem>
#include <optional>
#include <stdexcept>
#include <string>

namespace {

namespace fs = std::filesystem;

/// The group container, a bus of its own, and our way to both.
struct Delivery {
    Delivery() {
        cpu_set_t one;
        CPU_ZERO(&one);
        CPU_SET(0, &one);
        if (::sched_setaffinity(0, sizeof one, &one) != 0)
            throw std::runtime_error("cannot stay on one processor");
        bus.emplace();
        fs::create_directories(container);
        foundation::writeFileAtomically("{}", file);
    }
    Delivery(const Delivery&) = delete;
    Delivery& operator=(const Delivery&) = delete;
    ~Delivery() { fs::remove_all(data); }

    std::optional<support::PrivateSessionBus> bus;
    const fs::path data = fs::path(NURVA_BENCH_FOLDER) / "delivery-benchmark";
    const fs::path container = data / "group-containers" / "group.org.nurva.Nurva";
    const fs::path file = container / nurva::GrupoDeApps::archivoDePeticion;
    const foundation::SystemClock clock;
    const foundation::DefaultFileManager files{
        foundation::EnvironmentVariables({{"XDG_DATA_HOME", data}})};
    const foundation::SessionBusNotificationCenter center;
    const foundation::Environment environment{clock,
                                              files,
                                              center,
                                              foundation::Bundle::localized("/nowhere", {}),
                                              {}};
};

/// Counts only when the other process says that it has read the file.
void awaitReader(support::ChildProcess& reader, benchmark::State& state, const char* expected) {
    if (reader.line() != expected)
        state.SkipWithError("nobody has read the request");
}

double level(std::size_t turn) {
    return static_cast<double>(turn % 101) / 100;
}

Delivery& delivery() {
    static Delivery kept;
    return kept;
}

void deliver(benchmark::State& state) {
    support::ChildProcess reader({NURVA_DELIVERY_READER, delivery().file});
    awaitReader(reader, state, "ready");
    std::size_t turn = 0;
    for (auto _ : state) {
        nurva::PonerVolumen("com.ejemplo.musica", level(turn++)).perform(delivery().environment);
        awaitReader(reader, state, "1");
    }
}

void deliverWithGLib(benchmark::State& state) {
    peers::GLibDelivery peer(delivery().file);
    support::ChildProcess reader({NURVA_DELIVERY_GLIB_READER, delivery().file});
    awaitReader(reader, state, "ready");
    std::size_t turn = 0;
    for (auto _ : state) {
        peer.deliver("com.ejemplo.musica", level(turn++));
        awaitReader(reader, state, "1");
    }
}

void write(benchmark::State& state) {
    for (auto _ : state)
        foundation::writeFileAtomically(R"({"volumen":{"app":"a","nivel":0.5}})", delivery().file);
}

void post(benchmark::State& state) {
    for (auto _ : state)
        delivery().center.post(nurva::GrupoDeApps::nombreDeNotificacion());
}

// Real time: most of it passes in the other processes.
BENCHMARK(deliver)->UseRealTime();
BENCHMARK(deliverWithGLib)->UseRealTime();
BENCHMARK(write)->UseRealTime();
BENCHMARK(post)->UseRealTime();

}  // namespace

BENCHMARK_MAIN();

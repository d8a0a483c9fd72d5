// A picture of a small card at two pixels per point on its way to another process, until that has
// looked at every pixel: in memory that both keep, announced by a message, against the same pixels
// inside a D-Bus message. The same library carries the messages of both over the same kind of
// socket.

#include "platform/foundation/notifications/SessionBus.hpp"
#include "platform/remote/PictureMemory.hpp"
#include "platform/remote/Wire.hpp"
#include "support/PrivateSessionBus.hpp"

#include <benchmark/benchmark.h>
#include <sched.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <systemd/sd-id128.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdint>
#include <numeric>
#include <span>
#include <stdexcept>
#include <vector>

namespace {

using remote::check;

constexpr std::size_t count = 340 * 340;

foundation::SessionBus connected(int socket, bool asServer) {
    sd_bus* made = nullptr;
    check(sd_bus_new(&made));
    foundation::SessionBus bus(made);
    check(sd_bus_set_fd(made, socket, socket));
    if (asServer) {
        sd_id128_t id;
        check(sd_id128_randomize(&id));
        check(sd_bus_set_server(made, true, id));
    }
    check(sd_bus_set_anonymous(made, true));
    check(sd_bus_start(made));
    return bus;
}

/// The process that draws: each call gets the next picture, which is drawn where the other process
/// sees it, or into memory of its own and put into the answer.
struct Sender {
    void answer(sd_bus_message* call) {
        sd_bus_message* made = nullptr;
        check(sd_bus_message_new_method_return(call, &made));
        const foundation::BusMessage reply(made);
        const std::uint32_t color = ++turn % 2;
        if (sd_bus_message_is_method_call(call, "a.b", "Shared") > 0) {
            std::ranges::fill(shared, color);
        } else {
            std::ranges::fill(own, color);
            check(sd_bus_message_append_array(made, 'y', own.data(), 4 * count));
        }
        check(sd_bus_send(sd_bus_message_get_bus(call), made, nullptr));
    }

    std::span<std::uint32_t> shared;
    std::vector<std::uint32_t> own = std::vector<std::uint32_t>(count);
    std::uint32_t turn = 0;
};

int answer(sd_bus_message* call, void* sender, sd_bus_error*) {
    static_cast<Sender*>(sender)->answer(call);
    return 1;
}

void serve(sd_bus& bus, std::span<std::uint32_t> shared) {
    Sender sender{.shared = shared};
    check(sd_bus_add_object(&bus, nullptr, "/", answer, &sender));
    while (true)
        if (check(sd_bus_process(&bus, nullptr)) == 0)
            check(sd_bus_wait(&bus, UINT64_MAX));
}

/// A process of its own, ended with its owner.
struct Process {
    template <class Run>
    explicit Process(Run run) : id(::fork()) {
        if (id == 0) {
            run();
            ::_exit(0);
        }
    }
    Process(const Process&) = delete;
    Process& operator=(const Process&) = delete;
    ~Process() {
        ::kill(id, SIGKILL);
        ::waitpid(id, nullptr, 0);
    }
    pid_t id;
};

foundation::BusMessage ask(sd_bus& bus, const char* destination, const char* member) {
    sd_bus_message* answer = nullptr;
    check(sd_bus_call_method(&bus, destination, "/", "a.b", member, nullptr, &answer, ""));
    return foundation::BusMessage(answer);
}

/// Looks at every pixel; each is that of this turn.
void look(std::span<const std::uint32_t> pixels, std::uint32_t turn, benchmark::State& state) {
    const auto sum = std::accumulate(pixels.begin(), pixels.end(), std::uint64_t{0});
    if (sum != std::uint64_t{turn % 2} * count)
        state.SkipWithError("not the picture that was sent");
}

void stayOnOneProcessor() {
    cpu_set_t one;
    CPU_ZERO(&one);
    CPU_SET(0, &one);
    if (::sched_setaffinity(0, sizeof one, &one) != 0)
        throw std::runtime_error("cannot stay on one processor");
}

void inSharedMemory(benchmark::State& state) {
    stayOnOneProcessor();
    int ends[2];
    if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0, ends) != 0)
        throw std::runtime_error("no socket");
    const auto shared = remote::PictureMemory::create(count);
    const Process sender([&] { serve(*connected(ends[1], true), shared.pixels()); });
    ::close(ends[1]);
    const foundation::SessionBus bus = connected(ends[0], false);
    std::uint32_t turn = 0;
    for (auto _ : state) {
        ask(*bus, nullptr, "Shared");
        look(shared.pixels(), ++turn, state);
    }
}

foundation::SessionBus sessionBus() {
    return foundation::openSessionBus(foundation::Deadline::clock::now() + std::chrono::seconds(5));
}

void inMessage(benchmark::State& state) {
    stayOnOneProcessor();
    const support::PrivateSessionBus daemon;
    const Process sender([&] {
        const foundation::SessionBus bus = sessionBus();
        check(sd_bus_request_name(bus.get(), "a.b", 0));
        serve(*bus, {});
    });
    const foundation::SessionBus bus = sessionBus();
    while (sd_bus_get_name_creds(bus.get(), "a.b", 0, nullptr) < 0)
        ::usleep(1000);
    std::uint32_t turn = 0;
    for (auto _ : state) {
        const foundation::BusMessage answer = ask(*bus, "a.b", "Copied");
        const void* bytes = nullptr;
        std::size_t size = 0;
        check(sd_bus_message_read_array(answer.get(), 'y', &bytes, &size));
        look({static_cast<const std::uint32_t*>(bytes), size / 4}, ++turn, state);
    }
}

BENCHMARK(inSharedMemory)->UseRealTime();
BENCHMARK(inMessage)->UseRealTime();

}  // namespace

BENCHMARK_MAIN();

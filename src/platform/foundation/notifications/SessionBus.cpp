#include "platform/foundation/notifications/SessionBus.hpp"

#include <poll.h>

#include <algorithm>
#include <cerrno>
#include <cstdint>

namespace foundation {
namespace {

using std::chrono::milliseconds;

/// Waits until the connection can go on. False at the deadline or on a fault.
bool wait(sd_bus& bus, Deadline deadline) {
    const auto left = std::chrono::ceil<milliseconds>(deadline - Deadline::clock::now());
    if (left <= milliseconds::zero())
        return false;
    const int events = sd_bus_get_events(&bus);
    pollfd ready{.fd = sd_bus_get_fd(&bus), .events = static_cast<short>(events), .revents = 0};
    if (events < 0 || ready.fd < 0)
        return false;
    return ::poll(&ready, 1, static_cast<int>(left.count())) >= 0 || errno == EINTR;
}

/// Lets the connection work until it `isDone`, asked after each step.
template <class IsDone>
bool work(sd_bus& bus, Deadline deadline, IsDone isDone) {
    while (!isDone()) {
        const int processed = sd_bus_process(&bus, nullptr);
        if (processed < 0 || Deadline::clock::now() >= deadline)
            return false;
        if (processed == 0 && !isDone() && !wait(bus, deadline))
            return false;
    }
    return true;
}

}  // namespace

SessionBus openSessionBus(Deadline deadline) {
    sd_bus* opened = nullptr;
    if (sd_bus_open_user(&opened) < 0)
        return nullptr;
    SessionBus bus(opened);
    if (!work(*bus, deadline, [&] { return sd_bus_is_ready(opened) > 0; }))
        return nullptr;
    return bus;
}

bool flush(sd_bus& bus, Deadline deadline) {
    return work(bus, deadline, [&] {
        std::uint64_t queued = 0;
        return sd_bus_get_n_queued_write(&bus, &queued) >= 0 && queued == 0;
    });
}

}  // namespace foundation

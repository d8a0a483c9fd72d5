#pragma once

#include <systemd/sd-bus.h>

#include <chrono>
#include <memory>

namespace foundation {

struct SessionBusDeleter {
    void operator()(sd_bus* bus) const { sd_bus_close_unref(bus); }
};

/// A connection to the user's session bus. For one thread at a time.
using SessionBus = std::unique_ptr<sd_bus, SessionBusDeleter>;

struct BusMessageDeleter {
    void operator()(sd_bus_message* message) const { sd_bus_message_unref(message); }
};
using BusMessage = std::unique_ptr<sd_bus_message, BusMessageDeleter>;

using Deadline = std::chrono::steady_clock::time_point;

/// A connection that is ready for use; null where there is no bus or it does not answer in time.
SessionBus openSessionBus(Deadline deadline);

/// Lets the connection work until all that was sent has left. False where it broke or had to stop
/// for the deadline.
bool flush(sd_bus& bus, Deadline deadline);

}  // namespace foundation

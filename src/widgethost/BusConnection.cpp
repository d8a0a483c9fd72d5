#include "widgethost/BusConnection.hpp"

#include <glib.h>

#include <algorithm>
#include <cstdint>
#include <limits>
#include <utility>

namespace widgethost {

namespace {

/// A source of the main context that keeps a connection going.
struct BusSource {
    GSource source;
    sd_bus* bus;
    std::function<void()>* onClosed;
    void* tag;
    GIOCondition events;
    bool isOpen;
};

BusSource& busSource(GSource* source) {
    return *reinterpret_cast<BusSource*>(source);
}

/// Asks for what the connection waits for. True where it need not wait.
gboolean prepare(GSource* source, int* timeout) {
    BusSource& self = busSource(source);
    *timeout = -1;
    const int events = sd_bus_get_events(self.bus);
    if (!self.isOpen)
        return FALSE;
    if (events < 0)
        return TRUE;
    // Each change wakes the context, which would prepare again for ever.
    if (self.events != static_cast<GIOCondition>(events)) {
        self.events = static_cast<GIOCondition>(events);
        g_source_modify_unix_fd(source, self.tag, self.events);
    }
    std::uint64_t deadline = 0;
    if (sd_bus_get_timeout(self.bus, &deadline) < 0 ||
        deadline == std::numeric_limits<std::uint64_t>::max())
        return FALSE;
    const auto now = static_cast<std::uint64_t>(g_get_monotonic_time());
    const std::uint64_t left = deadline > now ? (deadline - now + 999) / 1000 : 0;
    *timeout = static_cast<int>(std::min<std::uint64_t>(left, 3'600'000));
    return left == 0;
}

gboolean check(GSource* source) {
    BusSource& self = busSource(source);
    if (!self.isOpen)
        return FALSE;
    std::uint64_t deadline = 0;
    const bool isDue = sd_bus_get_timeout(self.bus, &deadline) > 0 &&
                       deadline <= static_cast<std::uint64_t>(g_get_monotonic_time());
    return isDue || g_source_query_unix_fd(source, self.tag) != 0 ||
           sd_bus_get_events(self.bus) < 0;
}

gboolean dispatch(GSource* source, GSourceFunc, void*) {
    BusSource& self = busSource(source);
    // What a message is answered with may be the end of this connection.
    sd_bus* const bus = sd_bus_ref(self.bus);
    // Others of the context have their turn in between.
    int turns = 64;
    int processed = 1;
    while (processed > 0 && turns-- > 0 && !g_source_is_destroyed(source))
        processed = sd_bus_process(bus, nullptr);
    if (processed < 0 && !g_source_is_destroyed(source)) {
        self.isOpen = false;
        const std::function<void()> onClosed = *self.onClosed;
        onClosed();
    }
    sd_bus_unref(bus);
    return G_SOURCE_CONTINUE;
}

void finalize(GSource* source) {
    delete busSource(source).onClosed;
}

GSourceFuncs functions{prepare, check, dispatch, finalize, nullptr, nullptr};

}  // namespace

BusConnection::BusConnection(foundation::SessionBus bus, std::function<void()> onClosed)
    : bus_(std::move(bus)), source_(g_source_new(&functions, sizeof(BusSource))) {
    BusSource& self = busSource(source_.get());
    self.bus = bus_.get();
    self.onClosed = new std::function<void()>(std::move(onClosed));
    self.events = G_IO_IN;
    self.tag = g_source_add_unix_fd(source_.get(), sd_bus_get_fd(bus_.get()), self.events);
    self.isOpen = true;
    g_source_attach(source_.get(), nullptr);
}

}  // namespace widgethost

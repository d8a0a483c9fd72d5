// The other side of the peer's delivery: reads the request file named on the command line at each
// signal, and says so with one line.

#include <gio/gio.h>
#include <unistd.h>

#include <string>

namespace {

void read(GDBusConnection*,
          const char*,
          const char*,
          const char*,
          const char*,
          GVariant*,
          void* file) {
    char* contents = nullptr;
    gsize size = 0;
    const bool isRead =
        g_file_get_contents(static_cast<const char*>(file), &contents, &size, nullptr) && size > 0;
    g_free(contents);
    if (::write(STDOUT_FILENO, isRead ? "1\n" : "0\n", 2) != 2)
        ::_exit(1);
}

}  // namespace

int main(int argumentCount, char** arguments) {
    if (argumentCount != 2)
        return 2;
    GDBusConnection* const bus = g_bus_get_sync(G_BUS_TYPE_SESSION, nullptr, nullptr);
    if (!bus)
        return 1;
    g_dbus_connection_signal_subscribe(bus, nullptr, "org.nurva.Nurva", "peticionDeWidget", "/",
                                       nullptr, G_DBUS_SIGNAL_FLAGS_NONE, read, arguments[1],
                                       nullptr);
    // An answer from the bus: it has heard of the subscription.
    g_variant_unref(g_dbus_connection_call_sync(bus, "org.freedesktop.DBus", "/",
                                                "org.freedesktop.DBus", "GetId", nullptr, nullptr,
                                                G_DBUS_CALL_FLAGS_NONE, -1, nullptr, nullptr));
    if (::write(STDOUT_FILENO, "ready\n", 6) != 6)
        return 1;
    g_main_loop_run(g_main_loop_new(nullptr, FALSE));
}

#include "peers/GLibDelivery.hpp"

#include <gio/gio.h>

#include <stdexcept>
#include <utility>

namespace peers {

struct GLibDelivery::Connection {
    GDBusConnection* bus = g_bus_get_sync(G_BUS_TYPE_SESSION, nullptr, nullptr);
    ~Connection() { g_clear_object(&bus); }
};

GLibDelivery::GLibDelivery(std::filesystem::path file)
    : file_(std::move(file)), connection_(std::make_unique<Connection>()) {
    if (!connection_->bus)
        throw std::runtime_error("no session bus");
}

GLibDelivery::~GLibDelivery() = default;

void GLibDelivery::deliver(const std::string& app, double level) {
    char number[G_ASCII_DTOSTR_BUF_SIZE];
    g_ascii_dtostr(number, sizeof number, level);
    char* const text =
        g_strdup_printf(R"({"volumen":{"app":"%s","nivel":%s}})", app.c_str(), number);
    const bool isWritten = g_file_set_contents(file_.c_str(), text, -1, nullptr);
    g_free(text);
    const bool isSent = g_dbus_connection_emit_signal(
        connection_->bus, nullptr, "/", "org.nurva.Nurva", "peticionDeWidget", nullptr, nullptr);
    if (!isWritten || !isSent)
        throw std::runtime_error("not delivered");
}

}  // namespace peers

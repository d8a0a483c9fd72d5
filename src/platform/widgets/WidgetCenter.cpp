#include "platform/widgets/WidgetCenter.hpp"

#include "platform/foundation/SessionBus.hpp"

#include <systemd/sd-bus.h>

#include <memory>

namespace widgets {

namespace {

constexpr const char* name = "org.nurva.WidgetCenter";
constexpr const char* path = "/org/nurva/WidgetCenter";

struct MessageDeleter {
    void operator()(sd_bus_message* message) const { sd_bus_message_unref(message); }
};

}  // namespace

bool WidgetCenter::reloadAllTimelines(std::chrono::milliseconds patience) {
    const foundation::Deadline deadline = foundation::Deadline::clock::now() + patience;
    const foundation::SessionBus bus = foundation::openSessionBus(deadline);
    sd_bus_message* made = nullptr;
    if (!bus || sd_bus_message_new_method_call(bus.get(), &made, name, path, name,
                                               "ReloadAllTimelines") < 0)
        return false;
    const std::unique_ptr<sd_bus_message, MessageDeleter> call(made);
    return sd_bus_message_set_auto_start(call.get(), false) >= 0 &&
           sd_bus_message_set_expect_reply(call.get(), false) >= 0 &&
           sd_bus_send(bus.get(), call.get(), nullptr) >= 0 && foundation::flush(*bus, deadline);
}

}  // namespace widgets

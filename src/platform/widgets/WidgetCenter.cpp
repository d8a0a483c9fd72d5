#include "platform/widgets/WidgetCenter.hpp"

#include "platform/foundation/SessionBus.hpp"

#include <systemd/sd-bus.h>

#include <cstdint>
#include <memory>

namespace widgets {

namespace {

constexpr const char* name = "org.nurva.WidgetCenter";
constexpr const char* path = "/org/nurva/WidgetCenter";

struct MessageDeleter {
    void operator()(sd_bus_message* message) const { sd_bus_message_unref(message); }
};
using Message = std::unique_ptr<sd_bus_message, MessageDeleter>;

/// A call to a widget host that runs already; null where it cannot be made.
Message call(sd_bus& bus, const char* member) {
    sd_bus_message* made = nullptr;
    if (sd_bus_message_new_method_call(&bus, &made, name, path, name, member) < 0)
        return nullptr;
    Message call(made);
    return sd_bus_message_set_auto_start(made, false) >= 0 ? std::move(call) : nullptr;
}

}  // namespace

bool WidgetCenter::reloadAllTimelines(std::chrono::milliseconds patience) {
    const foundation::Deadline deadline = foundation::Deadline::clock::now() + patience;
    const foundation::SessionBus bus = foundation::openSessionBus(deadline);
    const Message reload = bus ? call(*bus, "ReloadAllTimelines") : nullptr;
    return reload && sd_bus_message_set_expect_reply(reload.get(), false) >= 0 &&
           sd_bus_send(bus.get(), reload.get(), nullptr) >= 0 && foundation::flush(*bus, deadline);
}

WidgetCenter::Answer WidgetCenter::reloadTimelines(const std::string& kind,
                                                   std::chrono::milliseconds patience) {
    const foundation::SessionBus bus =
        foundation::openSessionBus(foundation::Deadline::clock::now() + patience);
    if (!bus)
        return Answer::noBus;
    const Message reload = call(*bus, kind.empty() ? "ReloadAllTimelines" : "ReloadTimelines");
    const auto time = static_cast<std::uint64_t>(std::chrono::microseconds(patience).count());
    if (!reload || (!kind.empty() && sd_bus_message_append(reload.get(), "s", kind.c_str()) < 0) ||
        sd_bus_call(bus.get(), reload.get(), time, nullptr, nullptr) < 0)
        return Answer::noHost;
    return Answer::done;
}

}  // namespace widgets

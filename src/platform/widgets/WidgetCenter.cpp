#include "platform/widgets/WidgetCenter.hpp"

#include "platform/foundation/notifications/SessionBus.hpp"

#include <systemd/sd-bus.h>

#include <cstdint>
#include <utility>

namespace widgets {

namespace {

using foundation::BusMessage;

/// A call to a widget host that runs already; null where it cannot be made.
BusMessage call(sd_bus& bus, const char* interface, const char* member) {
    sd_bus_message* made = nullptr;
    if (sd_bus_message_new_method_call(&bus, &made, WidgetCenter::name, WidgetCenter::path,
                                       interface, member) < 0)
        return nullptr;
    BusMessage call(made);
    return sd_bus_message_set_auto_start(made, false) >= 0 ? std::move(call) : nullptr;
}

/// Makes a call of up to one argument, and waits for the answer.
WidgetCenter::Answer answer(const char* interface,
                            const char* member,
                            const std::string& argument,
                            std::chrono::milliseconds patience) {
    using enum WidgetCenter::Answer;
    const foundation::SessionBus bus =
        foundation::openSessionBus(foundation::Deadline::clock::now() + patience);
    if (!bus)
        return noBus;
    const BusMessage question = call(*bus, interface, member);
    const auto time = static_cast<std::uint64_t>(std::chrono::microseconds(patience).count());
    if (!question ||
        (!argument.empty() && sd_bus_message_append(question.get(), "s", argument.c_str()) < 0) ||
        sd_bus_call(bus.get(), question.get(), time, nullptr, nullptr) < 0)
        return noHost;
    return done;
}

}  // namespace

bool WidgetCenter::reloadAllTimelines(std::chrono::milliseconds patience) {
    const foundation::Deadline deadline = foundation::Deadline::clock::now() + patience;
    const foundation::SessionBus bus = foundation::openSessionBus(deadline);
    const BusMessage reload = bus ? call(*bus, name, "ReloadAllTimelines") : nullptr;
    return reload && sd_bus_message_set_expect_reply(reload.get(), false) >= 0 &&
           sd_bus_send(bus.get(), reload.get(), nullptr) >= 0 && foundation::flush(*bus, deadline);
}

WidgetCenter::Answer WidgetCenter::reloadTimelines(const std::string& kind,
                                                   std::chrono::milliseconds patience) {
    return answer(name, kind.empty() ? "ReloadAllTimelines" : "ReloadTimelines", kind, patience);
}

WidgetCenter::Answer WidgetCenter::ping(std::chrono::milliseconds patience) {
    return answer("org.freedesktop.DBus.Peer", "Ping", {}, patience);
}

}  // namespace widgets

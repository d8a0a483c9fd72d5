#include "widgethost/WidgetCenterService.hpp"

#include "platform/foundation/localization/Message.hpp"
#include "platform/foundation/notifications/NotificationName.hpp"
#include "platform/widgets/WidgetCenter.hpp"

#include <algorithm>
#include <cstdint>
#include <iostream>
#include <utility>

namespace widgethost {

namespace {

// A bus that is started anew is there soon or not for long.
constexpr std::chrono::milliseconds firstPause{250};
constexpr std::chrono::milliseconds longestPause{60'000};

}  // namespace

WidgetCenterService::WidgetCenterService(std::function<void(const std::string&)> onReload)
    : onReload_(std::move(onReload)), pause_(firstPause) {
    connect();
}

void WidgetCenterService::post(const std::string& name) {
    if (!connection_)
        connect();
    if (!connection_)
        return;
    const foundation::NotificationName busName(name);
    sd_bus_emit_signal(connection_->bus(), foundation::notificationPath, busName.interface.c_str(),
                       busName.member.c_str(), nullptr);
}

void WidgetCenterService::connect() {
    retry_.reset();
    sd_bus* opened = nullptr;
    if (sd_bus_open_user(&opened) < 0)
        return retry();
    foundation::SessionBus bus(opened);
    if (sd_bus_add_object(opened, nullptr, widgets::WidgetCenter::path, called, this) < 0 ||
        sd_bus_request_name_async(opened, nullptr, widgets::WidgetCenter::name, 0, named, this) < 0)
        return retry();
    connection_.emplace(std::move(bus), [this] { retry(); });
}

void WidgetCenterService::retry() {
    connection_.reset();
    retry_ = after(pause_, [this] { connect(); });
    pause_ = std::min(2 * pause_, longestPause);
}

int WidgetCenterService::called(sd_bus_message* call, void* data, sd_bus_error* error) {
    auto& service = *static_cast<WidgetCenterService*>(data);
    const char* kind = "";
    if (sd_bus_message_is_method_call(call, widgets::WidgetCenter::name, "ReloadTimelines") > 0) {
        if (sd_bus_message_read(call, "s", &kind) <= 0)
            return sd_bus_error_set(error, SD_BUS_ERROR_INVALID_ARGS, "ReloadTimelines(s kind)");
    } else if (sd_bus_message_is_method_call(call, widgets::WidgetCenter::name,
                                             "ReloadAllTimelines") <= 0) {
        return 0;
    }
    service.onReload_(kind);
    return sd_bus_reply_method_return(call, nullptr);
}

int WidgetCenterService::named(sd_bus_message* answer, void* data, sd_bus_error*) {
    // A connection that is gone answers itself; of that its owner is told in another way.
    if (sd_bus_message_is_method_error(answer, nullptr) > 0)
        return 1;
    constexpr std::uint32_t isOurs = 1;
    std::uint32_t verdict = 0;
    if (sd_bus_message_read(answer, "u", &verdict) <= 0 || verdict != isOurs)
        std::cerr << "nurva: "
                  << foundation::message("ya hay otro escritorio de widgets; los avisos van a él")
                  << std::endl;
    else
        static_cast<WidgetCenterService*>(data)->pause_ = firstPause;
    return 1;
}

}  // namespace widgethost

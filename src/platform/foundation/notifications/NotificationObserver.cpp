#include "platform/foundation/notifications/NotificationObserver.hpp"

#include "platform/foundation/notifications/NotificationName.hpp"
#include "platform/foundation/notifications/SessionBus.hpp"

#include <cerrno>
#include <cstdint>
#include <system_error>
#include <utility>

namespace foundation {

struct NotificationObserver::Subscription {
    std::function<void()> onNotification;
    int heard = 0;
    SessionBus bus;
};

namespace {

void require(int result) {
    if (result < 0)
        throw std::system_error(-result, std::generic_category(), "session bus");
}

}  // namespace

NotificationObserver::NotificationObserver(std::string_view name,
                                           std::function<void()> onNotification,
                                           std::chrono::milliseconds patience)
    : subscription_(std::make_unique<Subscription>()) {
    subscription_->onNotification = std::move(onNotification);
    subscription_->bus = openSessionBus(Deadline::clock::now() + patience);
    sd_bus* const bus = subscription_->bus.get();
    if (!bus)
        require(-ENOTCONN);
    require(sd_bus_set_method_call_timeout(
        bus, static_cast<std::uint64_t>(std::chrono::microseconds(patience).count())));
    const NotificationName busName(name);
    const auto hear = [](sd_bus_message*, void* subscription, sd_bus_error*) {
        ++static_cast<Subscription*>(subscription)->heard;
        return 0;
    };
    require(sd_bus_match_signal(bus, nullptr, nullptr, notificationPath, busName.interface.c_str(),
                                busName.member.c_str(), hear, subscription_.get()));
}

NotificationObserver::~NotificationObserver() = default;

bool NotificationObserver::process() {
    int processed = 1;
    while (processed > 0) {
        processed = sd_bus_process(subscription_->bus.get(), nullptr);
        // Not called by the bus itself, through which it could not throw.
        for (; subscription_->heard > 0; --subscription_->heard)
            subscription_->onNotification();
    }
    return processed == 0;
}

int NotificationObserver::descriptor() const {
    return sd_bus_get_fd(subscription_->bus.get());
}

short NotificationObserver::events() const {
    return static_cast<short>(sd_bus_get_events(subscription_->bus.get()));
}

}  // namespace foundation

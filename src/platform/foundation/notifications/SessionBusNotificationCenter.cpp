#include "platform/foundation/notifications/SessionBusNotificationCenter.hpp"

#include "platform/foundation/notifications/NotificationName.hpp"
#include "platform/foundation/notifications/SessionBus.hpp"

#include <cerrno>
#include <mutex>
#include <utility>
#include <vector>

namespace foundation {
namespace {

enum class Sending { sent, broken, refused };

Sending send(sd_bus& bus, const NotificationName& name, Deadline deadline) {
    const int result = sd_bus_emit_signal(&bus, notificationPath, name.interface.c_str(),
                                          name.member.c_str(), nullptr);
    if (result == -EINVAL)
        return Sending::refused;
    return result >= 0 && flush(bus, deadline) ? Sending::sent : Sending::broken;
}

}  // namespace

/// The connections that nobody is sending on. One belongs to one thread while it sends, so that no
/// thread waits for another; there are as many as threads have been sending at the same time.
class SessionBusNotificationCenter::Connections {
  public:
    SessionBus take() {
        const std::lock_guard lock(mutex_);
        if (idle_.empty())
            return nullptr;
        SessionBus bus = std::move(idle_.back());
        idle_.pop_back();
        return bus;
    }
    void giveBack(SessionBus bus) {
        const std::lock_guard lock(mutex_);
        idle_.push_back(std::move(bus));
    }

  private:
    std::mutex mutex_;
    std::vector<SessionBus> idle_;
};

SessionBusNotificationCenter::SessionBusNotificationCenter(std::chrono::milliseconds patience)
    : connections_(std::make_unique<Connections>()), patience_(patience) {}

SessionBusNotificationCenter::~SessionBusNotificationCenter() = default;

void SessionBusNotificationCenter::post(std::string_view name) const {
    const NotificationName busName(name);
    const Deadline deadline = Deadline::clock::now() + patience_;
    Sending sending = Sending::broken;
    bool isFresh = false;
    while (sending == Sending::broken && !isFresh) {
        SessionBus bus = connections_->take();
        isFresh = !bus;
        if (isFresh)
            bus = openSessionBus(deadline);
        if (!bus)
            return;
        sending = send(*bus, busName, deadline);
        if (sending != Sending::broken)
            connections_->giveBack(std::move(bus));
    }
}

}  // namespace foundation

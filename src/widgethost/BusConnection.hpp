#pragma once

#include "platform/foundation/notifications/SessionBus.hpp"
#include "widgethost/MainLoop.hpp"

#include <functional>

namespace widgethost {

/// A D-Bus connection that the default main context works for.
class BusConnection {
  public:
    /// `onClosed` is called once, when the other end is gone; it may destroy the connection.
    BusConnection(foundation::SessionBus bus, std::function<void()> onClosed);

    sd_bus* bus() const { return bus_.get(); }

  private:
    foundation::SessionBus bus_;
    Source source_;
};

}  // namespace widgethost

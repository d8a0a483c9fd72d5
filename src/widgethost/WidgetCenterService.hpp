#pragma once

#include "widgethost/BusConnection.hpp"
#include "widgethost/MainLoop.hpp"

#include <chrono>
#include <functional>
#include <optional>
#include <string>

namespace widgethost {

/// The widget host on the session bus: hears the host applications that want widgets reloaded, and
/// sends the extension's notifications. While there is no bus it looks for one now and then.
class WidgetCenterService {
  public:
    /// `onReload` is given a kind, or nothing for all of them.
    explicit WidgetCenterService(std::function<void(const std::string& kind)> onReload);

    /// Sends a notification. Without a bus nobody would hear it.
    void post(const std::string& name);

  private:
    void connect();
    void retry();
    static int called(sd_bus_message* call, void* service, sd_bus_error* error);
    static int named(sd_bus_message* answer, void* service, sd_bus_error* error);

    std::function<void(const std::string&)> onReload_;
    std::optional<BusConnection> connection_;
    std::chrono::milliseconds pause_{};
    Source retry_;
};

}  // namespace widgethost

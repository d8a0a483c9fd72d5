#pragma once

#include "platform/foundation/notifications/DistributedNotificationCenter.hpp"

#include <functional>
#include <string>
#include <utility>

namespace process {

/// The notification centre of a process without a bus: somebody else is handed each name and sends
/// it.
class ForwardedNotifications final : public foundation::DistributedNotificationCenter {
  public:
    /// `forward` is called on whatever thread posts.
    explicit ForwardedNotifications(std::function<void(std::string)> forward)
        : forward_(std::move(forward)) {}

    void post(std::string_view name) const override { forward_(std::string(name)); }

  private:
    std::function<void(std::string)> forward_;
};

}  // namespace process

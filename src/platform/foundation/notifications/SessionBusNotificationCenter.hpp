#pragma once

#include "platform/foundation/notifications/DistributedNotificationCenter.hpp"

#include <chrono>
#include <memory>

namespace foundation {

/// Sends each notification as a signal on the user's session bus, which has it when `post` returns.
/// A connection is opened when first needed, kept, and opened anew once it is broken. Without a bus
/// nothing happens; a bus that does not answer is left alone after the given patience.
class SessionBusNotificationCenter : public DistributedNotificationCenter {
  public:
    static constexpr std::chrono::milliseconds usualPatience{500};

    explicit SessionBusNotificationCenter(std::chrono::milliseconds patience = usualPatience);
    ~SessionBusNotificationCenter() override;

    void post(std::string_view name) const override;

  private:
    class Connections;
    std::unique_ptr<Connections> connections_;
    std::chrono::milliseconds patience_;
};

}  // namespace foundation

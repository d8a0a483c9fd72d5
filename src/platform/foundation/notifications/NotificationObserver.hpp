#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <string_view>

namespace foundation {

/// Hears the distributed notifications of one name: from its construction on, each is one call of
/// the given function, made within `process`. For one thread, which waits as it likes:
///
///     while (observer.process()) {
///         pollfd ready{observer.descriptor(), observer.events(), 0};
///         poll(&ready, 1, -1);
///     }
class NotificationObserver {
  public:
    /// Throws std::system_error where there is no session bus, it does not answer within
    /// `patience`, or the name is none of a notification.
    NotificationObserver(std::string_view name,
                         std::function<void()> onNotification,
                         std::chrono::milliseconds patience = std::chrono::seconds(5));
    ~NotificationObserver();

    /// Calls the function for all that has come. False once the connection is broken; what is
    /// posted from then on is not heard.
    bool process();

    /// What to poll for before the next `process`.
    int descriptor() const;
    short events() const;

  private:
    struct Subscription;
    std::unique_ptr<Subscription> subscription_;
};

}  // namespace foundation

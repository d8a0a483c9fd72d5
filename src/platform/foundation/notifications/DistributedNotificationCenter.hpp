#pragma once

#include <string_view>

namespace foundation {

/// Broadcasts to all programs of the user. What is sent is a name and nothing else.
class DistributedNotificationCenter {
  public:
    virtual ~DistributedNotificationCenter() = default;

    /// Sends at once, each time anew. Whether anybody listens is unknown. Any thread; never fails.
    virtual void post(std::string_view name) const = 0;
};

}  // namespace foundation

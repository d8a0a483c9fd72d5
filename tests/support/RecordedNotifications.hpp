#pragma once

#include "platform/foundation/notifications/DistributedNotificationCenter.hpp"

#include <mutex>
#include <string>
#include <string_view>
#include <vector>

namespace support {

/// A notification centre that keeps the names it is given. Any thread.
class RecordedNotifications : public foundation::DistributedNotificationCenter {
  public:
    void post(std::string_view name) const override {
        const std::lock_guard lock(mutex_);
        posted_.emplace_back(name);
    }

    std::vector<std::string> posted() const {
        const std::lock_guard lock(mutex_);
        return posted_;
    }

  private:
    mutable std::mutex mutex_;
    mutable std::vector<std::string> posted_;
};

}  // namespace support

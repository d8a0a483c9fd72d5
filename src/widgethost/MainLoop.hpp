#pragma once

#include "platform/foundation/Date.hpp"
#include "platform/foundation/files/FileDescriptor.hpp"

#include <chrono>
#include <functional>
#include <memory>
#include <optional>

struct _GSource;

namespace widgethost {

// Things of the default main context that end with their owner. Their functions are called by the
// context's thread, and may destroy the thing that calls them.

struct SourceDeleter {
    void operator()(_GSource* source) const;
};
using Source = std::unique_ptr<_GSource, SourceDeleter>;

/// Calls the function whenever the descriptor can be read.
Source whenReadable(int descriptor, std::function<void()> then);

/// Calls the function once, after a while.
Source after(std::chrono::milliseconds delay, std::function<void()> then);

/// Calls the function at an instant of the wall clock, also when the clock is set or the machine
/// wakes up behind it; when the clock is set at all, since nobody knows what else it changed.
class WallClockTimer {
  public:
    /// Throws std::system_error where the system has no descriptor left.
    explicit WallClockTimer(std::function<void()> then);

    /// The next call is at this instant; never without one.
    void set(std::optional<foundation::Date> instant);

  private:
    foundation::FileDescriptor timer_;
    Source source_;
};

}  // namespace widgethost

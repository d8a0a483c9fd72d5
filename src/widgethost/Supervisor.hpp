#pragma once

#include "widgethost/ExtensionLink.hpp"
#include "widgethost/MainLoop.hpp"
#include "widgethost/RestartLimit.hpp"
#include "widgethost/Session.hpp"

#include <cstdint>
#include <functional>
#include <memory>
#include <string>

namespace widgethost {

/// Keeps a process of the extension at hand: starts it when it is needed, and again after it has
/// stopped, but not over and over; ends it when it has not been needed for a while.
class Supervisor {
  public:
    struct Events {
        std::function<void()> onStarted;
        std::function<void(Ending)> onStopped;
        std::function<void()> onMayStart;  // what could not start before may now
        std::function<void(const std::string& name)> onPost;
    };

    Supervisor(SessionOptions options, Events events);

    /// The running extension, started if it is not; null while it may not be started.
    ExtensionLink* link();

    /// The running extension, or null.
    ExtensionLink* running() const { return link_.get(); }

    /// Ends the running process; the next one knows of what has changed meanwhile.
    void end() { link_.reset(); }

    /// Counts a stop while it was needed.
    void blame(Ending ending);

    /// What it shows has changed, so that a start may help where the ones before did not.
    void changed() { limit_.changed(Instant::clock::now()); }

    /// Another number for each process.
    std::uint64_t number() const { return number_; }

  private:
    /// Ends the process when it has not been needed for a while.
    void restLater();
    void stopped();
    void postponeTo(Instant when);

    SessionOptions options_;
    Events events_;
    RestartLimit limit_;
    std::unique_ptr<ExtensionLink> link_;
    std::uint64_t number_ = 0;
    Source postponed_;
    Source resting_;
};

}  // namespace widgethost

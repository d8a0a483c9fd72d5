#pragma once

#include "support/ChildProcess.hpp"

#include <sys/types.h>

#include <optional>
#include <string>

namespace journeys {

/// The widget host's program as a user of a desktop starts it. Killed with its owner.
class WidgetHost {
  public:
    explicit WidgetHost(const std::string& arguments = {});

    pid_t id() const { return id_; }

    /// The process of the extension; 0 where none is running.
    pid_t extension() const;

    void kill() { process_.kill(); }

    /// Asks it to end, as a logout does.
    std::optional<int> quit();

    /// Its exit status once it ends; nothing when it does not in time.
    std::optional<int> ended();

    /// The next line that it writes for its user.
    std::optional<std::string> line() { return process_.line(); }

  private:
    support::ChildProcess process_;
    pid_t id_;
};

/// Whether a process runs, or is at least there until somebody has taken note of its end.
bool isRunning(pid_t process);
bool isThere(pid_t process);

}  // namespace journeys

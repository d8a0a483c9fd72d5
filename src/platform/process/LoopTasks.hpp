#pragma once

#include "platform/foundation/files/FileDescriptor.hpp"

#include <functional>
#include <mutex>
#include <vector>

namespace process {

/// What other threads want done on the thread of a loop, in the order in which it came.
class LoopTasks {
  public:
    /// Throws std::system_error where the system has no descriptor left.
    LoopTasks();

    /// Any thread.
    void add(std::function<void()> task);

    /// Does what has come. For the loop's thread.
    void run();

    /// Readable while there is something to run.
    int descriptor() const { return event_.number(); }

  private:
    foundation::FileDescriptor event_;
    std::mutex mutex_;
    std::vector<std::function<void()>> tasks_;
};

}  // namespace process

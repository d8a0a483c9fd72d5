#pragma once

#include "platform/foundation/files/FileDescriptor.hpp"

#include <sys/types.h>

#include <filesystem>

namespace widgethost {

/// The running program of an extension. Once its socket is closed it ends by itself; its owner's
/// end waits for that, a little, and then ends it.
class ExtensionProcess {
  public:
    /// Starts the program with one end of a socket of its own. Throws std::system_error.
    explicit ExtensionProcess(const std::filesystem::path& program, bool requiresSandbox = false);
    ExtensionProcess(const ExtensionProcess&) = delete;
    ExtensionProcess& operator=(const ExtensionProcess&) = delete;
    ~ExtensionProcess();

    /// Our end of the socket. To be taken once.
    foundation::FileDescriptor takeSocket() { return std::move(socket_); }

    /// Ends it at once.
    void kill();

    /// Whether it has ended, whoever ended it.
    bool hasEnded() const;

    /// Closes our end of the socket where it was not taken, and waits for the process's end as its
    /// owner's end does. Its exit status; 128 and more is a signal. To be called once.
    int end();

    /// Whether `kill` ended it.
    bool wasKilled() const { return wasKilled_; }

  private:
    bool endsWithin(int milliseconds) const;

    foundation::FileDescriptor socket_;
    pid_t id_ = 0;
    bool wasKilled_ = false;
    foundation::FileDescriptor process_;  // readable once it has ended
};

}  // namespace widgethost

#pragma once

#include "support/ChildProcess.hpp"
#include "support/TemporaryFolder.hpp"

#include <csignal>
#include <cstdlib>
#include <optional>
#include <stdexcept>
#include <string>

namespace support {

/// A session bus of its own at a fixed address, which is that of this process as long as it lives.
class PrivateSessionBus {
  public:
    PrivateSessionBus() {
        ::setenv("DBUS_SESSION_BUS_ADDRESS", address().c_str(), 1);
        start();
    }
    PrivateSessionBus(const PrivateSessionBus&) = delete;
    PrivateSessionBus& operator=(const PrivateSessionBus&) = delete;
    ~PrivateSessionBus() { ::unsetenv("DBUS_SESSION_BUS_ADDRESS"); }

    /// Starts the bus, again where it had been ended.
    void start() {
        std::filesystem::remove(folder_.path() / "bus");
        daemon_.emplace(std::vector<std::string>{"sh", "-c",
                                                 "exec dbus-daemon --session --nofork --nopidfile "
                                                 "--nosyslog --print-address --address=" +
                                                     address() + " 2>/dev/null"});
        if (!daemon_->line())
            throw std::runtime_error("no session bus");
    }
    void end() { daemon_.reset(); }

    /// Lets the bus answer nobody, until it goes on.
    void hang() { daemon_->signal(SIGSTOP); }
    void goOn() { daemon_->signal(SIGCONT); }

  private:
    std::string address() const { return "unix:path=" + (folder_.path() / "bus").string(); }

    TemporaryFolder folder_;
    std::optional<ChildProcess> daemon_;
};

}  // namespace support

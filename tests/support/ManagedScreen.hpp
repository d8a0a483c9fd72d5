#pragma once

#include "support/ChildProcess.hpp"
#include "support/TemporaryFolder.hpp"
#include "support/XServer.hpp"

#include <cstdlib>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace support {

/// A screen that nobody sees, with a window manager, which is that of the processes that start from
/// now on.
class ManagedScreen {
  public:
    ManagedScreen(int width, int height) : ManagedScreen(serverInMemory(width, height)) {}
    /// The screen of a server with this command line.
    explicit ManagedScreen(const std::string& server) : server_(server) {
        ::setenv("DISPLAY", server_.display().c_str(), 1);
        // Nothing of the user's own: no keys, no menus.
        const auto settings = folder_.write(
            "rc.xml", "<openbox_config xmlns=\"http://openbox.org/3.4/rc\"></openbox_config>");
        manager_.emplace(
            std::vector<std::string>{"sh", "-c",
                                     "exec openbox --config-file '" + settings.string() +
                                         "' --sm-disable --startup 'echo ready' 2>/dev/null"});
        if (!manager_->line())
            throw std::runtime_error("no window manager");
    }

    /// The server goes away under everybody's feet.
    void end() { server_.end(); }

  private:
    TemporaryFolder folder_;
    XServer server_;
    std::optional<ChildProcess> manager_;
};

}  // namespace support

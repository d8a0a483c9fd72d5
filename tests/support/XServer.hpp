#pragma once

#include "support/ChildProcess.hpp"

#include <stdexcept>
#include <string>

namespace support {

/// The command line of a server that keeps its screen in memory.
inline std::string serverInMemory(int width, int height) {
    return "Xvfb -screen 0 " + std::to_string(width) + "x" + std::to_string(height) + "x24";
}

/// An X server with a screen that nobody sees. Ended with its owner, or before.
class XServer {
  public:
    XServer(int width, int height) : XServer(serverInMemory(width, height)) {}
    explicit XServer(const std::string& commandLine)
        : process_({"sh", "-c",
                    "exec " + commandLine + " -displayfd 1 -nolisten tcp -noreset 2>/dev/null"}) {
        const auto number = process_.line();
        if (!number)
            throw std::runtime_error("no X server");
        display_ = ":" + *number;
    }

    /// The display's name: ":1".
    const std::string& display() const { return display_; }

    void end() { process_.kill(); }

  private:
    ChildProcess process_;
    std::string display_;
};

}  // namespace support

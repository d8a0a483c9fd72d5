#pragma once

#include "support/TemporaryFolder.hpp"

#include <string>

namespace journeys {

/// Two monitors of 1280 by 800 pixels side by side, which come and go while programs run. A screen
/// has them whose server is this one.
class Monitors {
  public:
    Monitors();

    /// The server's command line.
    const std::string& server() const { return server_; }

    void unplugRight() const { change("--output DUMMY1 --off"); }
    void plugInRight() const { change("--output DUMMY1 --mode wide --pos 1280x0"); }
    void unplugLeft() const { change("--output DUMMY0 --off"); }
    void plugInLeft() const { change("--output DUMMY0 --mode wide --pos 0x0 --primary"); }

    /// The right one shows 800 by 600 pixels.
    void shrinkRight() const { change("--output DUMMY1 --mode small"); }

    /// Each stands where the other stood.
    void exchange() const { change("--output DUMMY0 --pos 1280x0 --output DUMMY1 --pos 0x0"); }

  private:
    void change(const std::string& arguments) const;

    support::TemporaryFolder folder_;
    std::string server_;
};

}  // namespace journeys

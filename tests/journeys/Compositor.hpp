#pragma once

#include "journeys/Picture.hpp"
#include "support/ChildProcess.hpp"
#include "support/TemporaryFolder.hpp"

#include <map>
#include <memory>
#include <string>

namespace journeys {

/// A Wayland compositor with a screen that nobody sees, which is that of the processes that start
/// from now on. It knows no layers under the windows as far as they can tell.
class Compositor {
  public:
    Compositor();

    /// Where each window is on the screen, by its title.
    std::map<std::string, Area> windows() const;

    /// Puts a window above the others.
    void raise(const std::string& title) const;

    Picture picture() const;

  private:
    support::TemporaryFolder folder_;
    std::unique_ptr<support::ChildProcess> process_;
};

}  // namespace journeys

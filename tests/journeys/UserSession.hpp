#pragma once

#include "journeys/Container.hpp"
#include "journeys/Screen.hpp"
#include "journeys/UserHome.hpp"
#include "support/ChildProcess.hpp"
#include "support/PrivateSessionBus.hpp"
#include "widgethost/Placement.hpp"

#include <memory>
#include <optional>
#include <string>

namespace journeys {

/// A user who has just logged in for the first time, in front of a screen.
class UserSession {
  public:
    explicit UserSession(canvas::PixelSize screenSize = {1280, 800}) : screen(screenSize) {}

    /// Starts the demo host application and waits for its first snapshot.
    void startHostApplication(const std::string& scene);

    /// Where the widgets stand, as the file has it. Throws where that is not to be understood.
    std::optional<widgethost::Placement> placement() const;

    UserHome home;
    Container container;
    Screen screen;
    support::PrivateSessionBus bus;

  private:
    std::unique_ptr<support::ChildProcess> hostApplication_;
};

}  // namespace journeys

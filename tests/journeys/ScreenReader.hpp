#pragma once

#include "journeys/Picture.hpp"
#include "platform/foundation/notifications/SessionBus.hpp"

#include <optional>
#include <string>
#include <vector>

namespace journeys {

/// Something that a screen reader tells of.
struct Heard {
    std::string role;
    std::string name;
    Area place;  // in its window
    bool isEnabled = false;
    bool isFocused = false;
    bool isActive = false;  // a window that has the keyboard
    std::string application;
    std::string path;
};

/// Asks over the bus for accessibility, as screen readers do, and remembers nothing.
class ScreenReader {
  public:
    /// Throws std::system_error where the session has no such bus.
    ScreenReader();

    /// The titles of the windows of all applications.
    std::vector<std::string> windows() const;

    /// All there is in a window, in the order of reading; nothing where there is no such window.
    std::vector<Heard> window(const std::string& title) const;

    /// The first one of this name in a window, after one of another name if that is given.
    std::optional<Heard> find(const std::string& title,
                              const std::string& name,
                              const std::string& after = {}) const;

    /// Waits for the first one of this name.
    std::optional<Heard> await(const std::string& title,
                               const std::string& name,
                               const std::string& after = {}) const;

    /// Presses a control; false where it cannot be pressed.
    bool press(const Heard& control) const;

  private:
    std::vector<Heard> toplevels() const;
    std::vector<Heard> children(const Heard& parent) const;
    void collect(const Heard& parent, std::vector<Heard>& all) const;
    Heard described(std::string application, std::string path) const;

    foundation::SessionBus bus_;
};

}  // namespace journeys

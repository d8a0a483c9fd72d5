#pragma once

#include "journeys/Picture.hpp"
#include "journeys/SettingsManager.hpp"
#include "support/ManagedScreen.hpp"

#include <memory>
#include <optional>
#include <string>
#include <vector>

struct _XDisplay;

namespace journeys {

/// A screen with a window manager, which is that of the processes that start from now on; and the
/// eyes and hands of whoever sits in front of it.
class Screen {
  public:
    explicit Screen(canvas::PixelSize size = {1280, 800});
    /// The screen of a server with this command line.
    Screen(canvas::PixelSize size, const std::string& server);
    ~Screen();

    /// The server goes away under everybody's feet.
    void end();

    /// The titles of the windows that there are.
    std::vector<std::string> windows() const;
    /// Where a window is, without its frame.
    std::optional<Area> window(const std::string& title) const;

    /// The title of the window that has the keyboard.
    std::string activeWindow() const;

    Picture picture(const Area& area) const;
    Picture picture() const { return picture({0, 0, size_.width, size_.height}); }
    /// What is seen where a window is; an empty picture where there is none.
    Picture pictureOf(const std::string& title) const;

    /// Presses keys by their names, the last one while the others are held: {"Shift_L", "Tab"}.
    void press(const std::vector<std::string>& keys);
    void movePointer(int x, int y);
    void click(int x, int y);

    /// Sets the resolution of texts in the settings of the desktop; 96 is the plain one.
    void setResolution(int dotsPerInch);

  private:
    struct Disconnect {
        void operator()(_XDisplay* display) const;
    };

    canvas::PixelSize size_;
    support::ManagedScreen screen_;
    std::unique_ptr<_XDisplay, Disconnect> display_;
    std::optional<SettingsManager> settings_;
};

}  // namespace journeys

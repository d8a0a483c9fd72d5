#pragma once

struct _XDisplay;

namespace journeys {

/// What a desktop's settings daemon does: tells all applications of a screen the user's settings,
/// and of their changes.
class SettingsManager {
  public:
    /// Requires that the connection outlives it.
    explicit SettingsManager(_XDisplay* display);

    /// Sets the resolution of texts; 96 is the plain one.
    void setResolution(int dotsPerInch);

  private:
    _XDisplay* display_;
    unsigned long window_;
    unsigned serial_ = 0;
};

}  // namespace journeys

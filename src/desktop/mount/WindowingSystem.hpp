#pragma once

namespace desktop {

/// Opens the display that fits best, with the settings of GTK that cards need. When the display
/// goes away later, the process says so and ends with status 1. False without any display.
bool openDisplay(bool forWindows);

}  // namespace desktop

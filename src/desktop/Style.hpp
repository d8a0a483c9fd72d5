#pragma once

#include <gdk/gdk.h>

namespace desktop {

/// Gives cards, their windows and the gallery their looks on a display.
void installStyle(GdkDisplay* display);

}  // namespace desktop

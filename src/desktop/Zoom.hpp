#pragma once

#include <gtk/gtk.h>

#include <optional>

namespace desktop {

/// How many units of GTK a point takes. The units are whole multiples of pixels; what the user's
/// resolution of texts asks for beyond that, or the `scale` in pixels a point, is in here: in
/// quarters, for text scaled by a few per cent would blur every line of a card.
double unitsPerPoint(GdkDisplay* display, std::optional<double> scale);

}  // namespace desktop

#pragma once

#include "desktop/gtk/Reference.hpp"
#include "desktop/mount/Mount.hpp"
#include "widgethost/Monitor.hpp"

#include <gtk/gtk.h>

#include <vector>

namespace desktop {

/// The monitors of a display, the primary one first: as GTK knows them, and as the grid does, at so
/// many units a point.
struct Screens {
    Screens(GdkDisplay* display, const Mount& mount, double unitsPerPoint);

    std::vector<widgethost::Monitor> monitors;
    std::vector<Reference<GdkMonitor>> handles;
};

}  // namespace desktop

#pragma once

#include <gtk/gtk.h>

namespace desktop {

/// What stands on a card whose widget has stopped.
GtkWidget* stoppedNotice();

}  // namespace desktop

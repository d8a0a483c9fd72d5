#pragma once

#include "desktop/gtk/Reference.hpp"
#include "platform/canvas/Pixels.hpp"

#include <gdk/gdk.h>

namespace desktop {

/// A picture for GTK to draw, with a copy of the pixels.
Reference<GdkTexture> texture(const canvas::Pixels& pixels);

}  // namespace desktop

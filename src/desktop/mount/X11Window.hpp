#pragma once

#include <X11/Xlib.h>
#include <gtk/gtk.h>

namespace desktop {

/// The X11 window under one of GTK, for what GTK does not offer. Requires that it is realized. A
/// window that the server has lost meanwhile does no harm.
class X11Window {
  public:
    explicit X11Window(GtkWindow* window);

    /// Asks the window manager to leave the window below all others, on every desktop and out of
    /// its lists. It reads that from the window when it is mapped and by message later.
    void layBelow() const;

    /// Moves it to a pixel, also where the window manager would choose another place.
    void move(int x, int y) const;

    /// Leaves of it only these pixels, or all of it again.
    void cut(const cairo_region_t& pixels) const;
    void uncut() const;

    int scale() const { return scale_; }

  private:
    Atom atom(const char* name) const;
    void ask(const char* what, long first, long second = 0, long third = 0) const;

    GdkDisplay* gdkDisplay_;
    Display* display_;
    Window window_;
    int scale_;
};

}  // namespace desktop

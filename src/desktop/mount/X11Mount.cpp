#include "desktop/mount/X11Mount.hpp"

#include "desktop/card/CardOutline.hpp"
#include "desktop/mount/X11Window.hpp"

#include <gdk/x11/gdkx.h>

#include <cmath>
#include <memory>

namespace desktop {

namespace {

constexpr const char* placeKey = "nurva-place";

/// Remembers the place for the time when the window is mapped.
void setPlace(GtkWindow* window, views::Point point) {
    g_object_set_data_full(G_OBJECT(window), placeKey, new views::Point(point),
                           [](gpointer place) { delete static_cast<views::Point*>(place); });
}

void applyPlace(GtkWindow* window) {
    const auto* place =
        static_cast<const views::Point*>(g_object_get_data(G_OBJECT(window), placeKey));
    if (!place || !gtk_widget_get_realized(GTK_WIDGET(window)))
        return;
    const X11Window x11(window);
    x11.move(static_cast<int>(std::lround(place->x * x11.scale())),
             static_cast<int>(std::lround(place->y * x11.scale())));
}

}  // namespace

void X11Mount::prepare(GtkWindow* window) {
    gtk_window_set_decorated(window, FALSE);
    connect<void()>(window, "realize", [window] {
        GdkSurface* surface = gtk_native_get_surface(GTK_NATIVE(window));
        gdk_x11_surface_set_skip_taskbar_hint(surface, TRUE);
        gdk_x11_surface_set_skip_pager_hint(surface, TRUE);
        // A widget that appears must not take the keyboard from whoever is typing.
        gdk_x11_surface_set_user_time(surface, 0);
        applyPlace(window);
    });
    // GTK sets these properties itself just before it maps the window, without what is asked here.
    connect<void()>(window, "map", [window] {
        X11Window(window).layBelow();
        applyPlace(window);
    });
}

void X11Mount::move(GtkWindow* window, GdkMonitor* /*monitor*/, views::Point point) {
    setPlace(window, point);
    applyPlace(window);
}

void X11Mount::cut(GtkWindow* window, views::Size card, double cornerRadius) {
    const X11Window x11(window);
    if (gdk_display_is_composited(display_) && gdk_display_is_rgba(display_))
        x11.uncut();
    else
        x11.cut(*cardOutline(static_cast<int>(std::lround(card.width * x11.scale())),
                             static_cast<int>(std::lround(card.height * x11.scale())),
                             cornerRadius * x11.scale()));
}

views::Rect X11Mount::area(GdkMonitor* monitor) const {
    GdkRectangle area;
    gdk_x11_monitor_get_workarea(monitor, &area);
    return {static_cast<double>(area.x), static_cast<double>(area.y),
            static_cast<double>(area.width), static_cast<double>(area.height)};
}

/// The toolkit reads the property anew whenever it is asked, but tells nobody that it has changed.
Connected X11Mount::watchAreas(const std::function<void()>& changed) const {
    Display* display = gdk_x11_display_get_xdisplay(display_);
    const Window root = gdk_x11_display_get_xrootwindow(display_);
    XWindowAttributes attributes;
    XGetWindowAttributes(display, root, &attributes);
    XSelectInput(display, root, attributes.your_event_mask | PropertyChangeMask);
    const Atom areas = gdk_x11_get_xatom_by_name_for_display(display_, "_NET_WORKAREA");
    return {display_, connect<gboolean(gpointer)>(
                          display_, "xevent", [root, areas, tell = changed](gpointer event) {
                              const XPropertyEvent& property =
                                  static_cast<XEvent*>(event)->xproperty;
                              if (property.type == PropertyNotify && property.window == root &&
                                  property.atom == areas)
                                  tell();
                              return FALSE;
                          })};
}

GdkMonitor* X11Mount::primaryMonitor() const {
    return gdk_x11_display_get_primary_monitor(display_);
}

std::optional<views::Point> X11Mount::pointer() const {
    Display* display = gdk_x11_display_get_xdisplay(display_);
    Window root = None;
    Window child = None;
    int x = 0;
    int y = 0;
    int inChildX = 0;
    int inChildY = 0;
    unsigned buttons = 0;
    if (!XQueryPointer(display, gdk_x11_display_get_xrootwindow(display_), &root, &child, &x, &y,
                       &inChildX, &inChildY, &buttons))
        return std::nullopt;
    const GdkMonitor* monitor = primaryMonitor();
    const double scale =
        monitor ? gdk_monitor_get_scale_factor(const_cast<GdkMonitor*>(monitor)) : 1;
    return views::Point{x / scale, y / scale};
}

}  // namespace desktop

#pragma once

#include "desktop/gtk/Connect.hpp"
#include "platform/views/geometry/Geometry.hpp"

#include <gtk/gtk.h>

#include <functional>
#include <memory>
#include <optional>

namespace desktop {

/// How the window of a card comes to its place on the desktop, of which every windowing system has
/// another idea. Lengths are the units of GTK.
class Mount {
  public:
    virtual ~Mount() = default;

    /// Whether cards stand where they are put; where not, they are ordinary windows.
    virtual bool placesWindows() const { return true; }

    /// Makes a window that of a card. Requires that it has not been shown.
    virtual void prepare(GtkWindow* window) = 0;

    /// Puts a window's top-left corner at a point of the desktop, now or when it is shown.
    virtual void move(GtkWindow* window, GdkMonitor* monitor, views::Point point) = 0;

    /// Cuts a window that is shown to the outline of its card, where nothing can be transparent.
    virtual void cut(GtkWindow* /*window*/, views::Size /*card*/, double /*cornerRadius*/) {}

    /// The part of a monitor that panels leave.
    virtual views::Rect area(GdkMonitor* monitor) const;

    /// Tells of changes of these parts, for as long as what it returns lives.
    virtual Connected watchAreas(const std::function<void()>& /*changed*/) const { return {}; }

    /// The first of the monitors.
    virtual GdkMonitor* primaryMonitor() const { return nullptr; }

    /// Where the pointer is on the desktop. Nothing where a window cannot follow it.
    virtual std::optional<views::Point> pointer() const { return std::nullopt; }
};

enum class Wanted { desktop, windows };

/// The way for this display: on the desktop where that can be.
std::unique_ptr<Mount> chooseMount(GdkDisplay* display, Wanted wanted);

}  // namespace desktop

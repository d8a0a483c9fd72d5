#pragma once

#include "desktop/mount/Mount.hpp"

namespace desktop {

/// Ordinary windows, which the user places.
class WindowMount : public Mount {
  public:
    bool placesWindows() const override { return false; }
    void prepare(GtkWindow* /*window*/) override {}
    void move(GtkWindow* /*window*/, GdkMonitor* /*monitor*/, views::Point /*point*/) override {}
};

}  // namespace desktop

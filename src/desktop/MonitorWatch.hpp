#pragma once

#include "desktop/gtk/Connect.hpp"
#include "desktop/mount/Mount.hpp"

#include <gtk/gtk.h>

#include <functional>
#include <list>

namespace desktop {

/// Tells of every change of a display's monitors while it lives: which there are, where they stand,
/// and what panels leave of them. It may tell in the middle of a change, and of no change at all.
class MonitorWatch {
  public:
    MonitorWatch(GdkDisplay* display, const Mount& mount, std::function<void()> changed);

  private:
    void watchEach();

    GListModel* all_;
    std::function<void()> changed_;
    Connected list_;
    Connected areas_;
    std::list<Connected> each_;
};

}  // namespace desktop

#include "desktop/MonitorWatch.hpp"

#include "desktop/gtk/Reference.hpp"

#include <utility>

namespace desktop {

MonitorWatch::MonitorWatch(GdkDisplay* display, const Mount& mount, std::function<void()> changed)
    : all_(gdk_display_get_monitors(display)),
      changed_(std::move(changed)),
      list_(all_,
            connect<void(unsigned, unsigned, unsigned)>(all_,
                                                        "items-changed",
                                                        [this](unsigned, unsigned, unsigned) {
                                                            watchEach();
                                                            changed_();
                                                        })),
      areas_(mount.watchAreas(changed_)) {
    watchEach();
}

/// A monitor that stays may take another size or place.
void MonitorWatch::watchEach() {
    each_.clear();
    for (unsigned i = 0; i < g_list_model_get_n_items(all_); ++i) {
        const auto monitor = adopted(static_cast<GdkMonitor*>(g_list_model_get_item(all_, i)));
        each_.emplace_back(monitor.get(),
                           connect<void(GParamSpec*)>(monitor.get(), "notify",
                                                      [this](GParamSpec*) { changed_(); }));
    }
}

}  // namespace desktop

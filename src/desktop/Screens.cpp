#include "desktop/Screens.hpp"

#include <algorithm>

namespace desktop {

namespace {

widgethost::Monitor described(GdkMonitor* monitor, const Mount& mount, double unitsPerPoint) {
    GdkRectangle geometry;
    gdk_monitor_get_geometry(monitor, &geometry);
    const char* connector = gdk_monitor_get_connector(monitor);
    const views::Rect area = mount.area(monitor);
    return {.identity = {connector ? connector : "", geometry.x, geometry.y, geometry.width,
                         geometry.height},
            .area = {area.x / unitsPerPoint, area.y / unitsPerPoint, area.width / unitsPerPoint,
                     area.height / unitsPerPoint}};
}

}  // namespace

Screens::Screens(GdkDisplay* display, const Mount& mount, double unitsPerPoint) {
    GListModel* all = gdk_display_get_monitors(display);
    for (unsigned i = 0; i < g_list_model_get_n_items(all); ++i)
        handles.push_back(adopted(static_cast<GdkMonitor*>(g_list_model_get_item(all, i))));
    const GdkMonitor* primary = mount.primaryMonitor();
    std::stable_partition(handles.begin(), handles.end(),
                          [&](const auto& one) { return one.get() == primary; });
    for (const auto& handle : handles)
        monitors.push_back(described(handle.get(), mount, unitsPerPoint));
}

}  // namespace desktop

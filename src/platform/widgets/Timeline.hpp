#pragma once

#include "platform/foundation/Date.hpp"
#include "platform/foundation/Environment.hpp"
#include "platform/widgets/WidgetFamily.hpp"

#include <vector>

namespace widgets {

/// When a timeline wants to be asked for again: not before an instant.
struct TimelineReloadPolicy {
    foundation::Date earliest;
    bool operator==(const TimelineReloadPolicy&) const = default;

    static TimelineReloadPolicy after(foundation::Date date) { return {date}; }
};

template <class Entry>
struct Timeline {
    std::vector<Entry> entries;  // at least one, in the order of their dates
    TimelineReloadPolicy policy;
};

/// For what a provider is asked, and the world it is asked in.
struct TimelineProviderContext {
    const foundation::Environment& environment;
    WidgetFamily family = WidgetFamily::systemSmall;
    bool isPreview = false;
};

}  // namespace widgets

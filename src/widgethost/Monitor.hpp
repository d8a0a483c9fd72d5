#pragma once

#include "platform/foundation/json/CodingKey.hpp"
#include "platform/views/geometry/Geometry.hpp"

#include <cstdint>
#include <string>
#include <tuple>

namespace widgethost {

/// What a monitor is known by from one day to the next: the socket it is plugged into, and where it
/// stands among the others, in the units of the desktop.
struct MonitorIdentity {
    std::string connector;
    std::int64_t x = 0;
    std::int64_t y = 0;
    std::int64_t width = 0;
    std::int64_t height = 0;
    bool operator==(const MonitorIdentity&) const = default;

    static constexpr std::tuple CodingKeys{
        foundation::CodingKey{"connector", &MonitorIdentity::connector},
        foundation::CodingKey{"x", &MonitorIdentity::x},
        foundation::CodingKey{"y", &MonitorIdentity::y},
        foundation::CodingKey{"width", &MonitorIdentity::width},
        foundation::CodingKey{"height", &MonitorIdentity::height},
    };
};

/// A monitor that is there now, with the part of the desktop on it that widgets may stand on, in
/// points.
struct Monitor {
    MonitorIdentity identity;
    views::Rect area;
};

}  // namespace widgethost

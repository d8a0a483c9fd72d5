#pragma once

#include "widgethost/Monitor.hpp"

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace widgethost {

inline Monitor monitor(std::string connector,
                       std::int64_t x,
                       std::int64_t y,
                       std::int64_t width,
                       std::int64_t height) {
    return {.identity = {std::move(connector), x, y, width, height},
            .area = {static_cast<double>(x), static_cast<double>(y), static_cast<double>(width),
                     static_cast<double>(height)}};
}

/// A screen of nine columns and five rows.
inline Monitor desk() {
    return monitor("HDMI-1", 0, 0, 1920, 1080);
}

/// One of six columns and three rows, on the right of the desk's.
inline Monitor laptop() {
    return monitor("eDP-1", 1920, 0, 1280, 720);
}

}  // namespace widgethost

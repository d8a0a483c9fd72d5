#pragma once

#include "platform/foundation/json/CodingKey.hpp"
#include "widgethost/Grid.hpp"
#include "widgethost/Monitor.hpp"

#include <cstdint>
#include <string>
#include <tuple>
#include <vector>

namespace widgethost {

/// A widget on the desktop and the place that the user has given it, whether or not it can stand
/// there now.
struct PlacedWidget {
    std::string kind;
    std::int64_t span = 1;  ///< the cells it takes
    MonitorIdentity monitor;
    std::int64_t column = 0;
    std::int64_t row = 0;
    bool operator==(const PlacedWidget&) const = default;

    Cell cell() const { return {column, row}; }

    static constexpr std::tuple CodingKeys{
        foundation::CodingKey{"kind", &PlacedWidget::kind},
        foundation::CodingKey{"span", &PlacedWidget::span},
        foundation::CodingKey{"monitor", &PlacedWidget::monitor},
        foundation::CodingKey{"column", &PlacedWidget::column},
        foundation::CodingKey{"row", &PlacedWidget::row},
    };
};

/// What is remembered of the desktop.
struct Placement {
    std::vector<PlacedWidget> widgets;
    bool windowsExplained = false;  ///< the user knows why widgets stand in ordinary windows
    bool operator==(const Placement&) const = default;

    static constexpr std::tuple CodingKeys{
        foundation::CodingKey{"widgets", &Placement::widgets},
        foundation::CodingKey{"windowsExplained", &Placement::windowsExplained},
    };
};

}  // namespace widgethost

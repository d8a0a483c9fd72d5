#include "widgethost/Arrangement.hpp"

#include <algorithm>
#include <cstddef>

namespace widgethost {

namespace {

/// The monitor in the same socket; else, where sockets have been renamed, the one that stands in
/// the same place.
std::optional<std::size_t> found(const MonitorIdentity& wanted,
                                 const std::vector<Monitor>& monitors) {
    const auto index = [&](auto matches) -> std::optional<std::size_t> {
        const auto at = std::find_if(monitors.begin(), monitors.end(), matches);
        if (at == monitors.end())
            return std::nullopt;
        return static_cast<std::size_t>(at - monitors.begin());
    };
    if (const auto same = index([&](const Monitor& one) { return one.identity == wanted; }))
        return same;
    if (const auto socket =
            index([&](const Monitor& one) { return one.identity.connector == wanted.connector; }))
        return socket;
    return index([&](const Monitor& one) {
        MonitorIdentity renamed = one.identity;
        renamed.connector = wanted.connector;
        return renamed == wanted;
    });
}

}  // namespace

std::vector<std::optional<Spot>> arranged(const Placement& placement,
                                          const std::vector<Monitor>& monitors) {
    std::vector<std::optional<Spot>> spots(placement.widgets.size());
    if (monitors.empty())
        return spots;
    Board board(monitors);
    const auto put = [&](std::size_t i, std::optional<Spot> spot) {
        spots[i] = spot;
        if (spot)
            board.take(*spot, placement.widgets[i].span);
    };
    // Whoever is at home goes first, so that a guest never takes his place.
    for (std::size_t i = 0; i < spots.size(); ++i) {
        const PlacedWidget& widget = placement.widgets[i];
        const auto home = found(widget.monitor, monitors);
        if (home && board.isFree({*home, widget.cell()}, widget.span))
            put(i, Spot{*home, widget.cell()});
    }
    for (std::size_t i = 0; i < spots.size(); ++i) {
        if (spots[i])
            continue;
        const PlacedWidget& widget = placement.widgets[i];
        const std::size_t refuge = found(widget.monitor, monitors).value_or(0);
        const views::Point wanted = board.origin({refuge, widget.cell()});
        const auto near = board.nearest(wanted, widget.span, refuge);
        put(i, near ? near : board.nearest(wanted, widget.span));
    }
    return spots;
}

}  // namespace widgethost

#include "platform/views/layout/StackLayout.hpp"

#include <numeric>

namespace views {

namespace {

bool choosesBefore(const Flexibility& a, const Flexibility& b) {
    if (a.isSpacer != b.isSpacer)
        return b.isSpacer;
    if (std::isinf(a.longest) && std::isinf(b.longest))
        return a.shortest > b.shortest;
    return a.longest - a.shortest < b.longest - b.shortest;
}

}  // namespace

std::pmr::vector<std::size_t> choosingOrder(std::span<const Flexibility> children,
                                            std::pmr::memory_resource* memory) {
    std::pmr::vector<std::size_t> order(children.size(), memory);
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) {
        if (choosesBefore(children[a], children[b]))
            return true;
        return !choosesBefore(children[b], children[a]) && a < b;
    });
    return order;
}

}  // namespace views

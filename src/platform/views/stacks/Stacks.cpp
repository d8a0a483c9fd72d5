#include "platform/views/stacks/Stacks.hpp"

#include "platform/views/stacks/Layers.hpp"
#include "platform/views/stacks/LinearStack.hpp"
#include "platform/views/view/ViewList.hpp"

#include <utility>

namespace views {

namespace {

/// A stack of one is that one child, so that it asks for nothing of its own.
template <class MakeStack>
View stackOf(std::initializer_list<View> children, const MakeStack& makeStack) {
    Views flat = flattened(children);
    if (flat.size() == 1 && !flat.front().node().spacerLength())
        return flat.front();
    return makeStack(std::move(flat));
}

}  // namespace

View HStack::operator()(std::initializer_list<View> children) const {
    return stackOf(children, [&](Views flat) {
        return LinearStack(Axis::horizontal, Alignment{.vertical = alignment}, spacing,
                           std::move(flat));
    });
}

View VStack::operator()(std::initializer_list<View> children) const {
    return stackOf(children, [&](Views flat) {
        return LinearStack(Axis::vertical, Alignment{.horizontal = alignment}, spacing,
                           std::move(flat));
    });
}

View ZStack::operator()(std::initializer_list<View> children) const {
    return stackOf(children, [&](Views flat) { return Layers(alignment, std::move(flat)); });
}

}  // namespace views

#pragma once

#include "platform/views/view/View.hpp"
#include "platform/views/view/ViewList.hpp"

#include <vector>

namespace views {

/// The view inside `wrap(view)`; a list's members each inside their own.
template <class Wrap>
View modified(const View& view, const Wrap& wrap) {
    const auto members = view.node().members();
    if (!members)
        return wrap(view);
    std::vector<View> wrapped;
    for (const View& member : *members)
        wrapped.push_back(modified(member, wrap));
    return ViewList(std::move(wrapped));
}

}  // namespace views

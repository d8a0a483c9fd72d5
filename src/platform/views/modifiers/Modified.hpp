#pragma once

#include "platform/views/view/View.hpp"
#include "platform/views/view/ViewList.hpp"

#include <utility>

namespace views {

/// The view inside `wrap(view)`; a list's members each inside their own.
template <class Wrap>
View modified(const View& view, const Wrap& wrap) {
    const auto members = view.node().members();
    if (!members)
        return wrap(view);
    Views wrapped(BuildMemory::current());
    wrapped.reserve(members->size());
    for (const View& member : *members)
        wrapped.push_back(modified(member, wrap));
    return ViewList(std::move(wrapped));
}

}  // namespace views

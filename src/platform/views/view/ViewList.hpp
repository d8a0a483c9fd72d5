#pragma once

#include "platform/views/view/View.hpp"

#include <initializer_list>
#include <span>
#include <utility>

namespace views {

/// Several views, or none, where one is expected: a stack takes its members as its own children, so
/// an empty list adds nothing to it, not even a gap. Outside a stack the members lie on each other.
class ViewList {
  public:
    explicit ViewList(Views members) : members_(std::move(members)) {}
    explicit ViewList(std::span<const View> members)
        : members_(members.begin(), members.end(), BuildMemory::current()) {}
    ViewList(std::initializer_list<View> members) : members_(members, BuildMemory::current()) {}

    Size sizeThatFits(const Proposal& proposal, LayoutContext& context) const;
    void draw(const Placement& place, LayoutContext& context, Recorder& recorder) const;
    double firstBaseline(const Proposal& proposal, LayoutContext& context) const;
    std::span<const View> members() const { return members_; }

  private:
    Views members_;
};

/// The views with every list among them replaced by its members, however deep.
Views flattened(std::span<const View> views);

/// What `make` makes, only where the condition holds.
template <class Make>
View when(bool condition, const Make& make) {
    if (condition)
        return make();
    return ViewList{};
}

/// One view for every element, in order.
template <class Elements, class Make>
View forEach(const Elements& elements, const Make& make) {
    Views views(BuildMemory::current());
    views.reserve(std::size(elements));
    for (const auto& element : elements)
        views.push_back(make(element));
    return ViewList(std::move(views));
}

}  // namespace views

#pragma once

#include "platform/views/layout/Alignment.hpp"
#include "platform/views/view/View.hpp"

#include <initializer_list>

namespace views {

// A stack is written attributes first, then its children: VStack{.spacing = 5}({a, b}).
// A stack of one child is that child; one of none is 0 × 0.

/// Children side by side, `spacing` points apart.
struct HStack {
    VerticalAlignment alignment = VerticalAlignment::center;
    double spacing = 0;
    View operator()(std::initializer_list<View> children) const;
};

/// Children below each other, `spacing` points apart.
struct VStack {
    HorizontalAlignment alignment = HorizontalAlignment::center;
    double spacing = 0;
    View operator()(std::initializer_list<View> children) const;
};

/// Children on each other, the first at the back.
struct ZStack {
    Alignment alignment;
    View operator()(std::initializer_list<View> children) const;
};

}  // namespace views

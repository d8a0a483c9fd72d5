#pragma once

#include "platform/views/view/View.hpp"

#include <optional>

namespace views {

/// A view around another one that leaves its layout as it is. Modifiers start from here and replace
/// what they change.
struct Wrapper {
    View inner;

    Size sizeThatFits(const Proposal& proposal, LayoutContext& context) const {
        return inner.sizeThatFits(proposal, context);
    }
    std::optional<double> fixedLength(Axis axis,
                                      std::optional<double> acrossOffer,
                                      LayoutContext& context) const {
        return inner.node().fixedLength(axis, acrossOffer, context);
    }
    double firstBaseline(const Proposal& proposal, LayoutContext& context) const {
        return inner.firstBaseline(proposal, context);
    }
};

}  // namespace views

#pragma once

#include "platform/views/layout/StackLayout.hpp"
#include "platform/views/view/View.hpp"

#include <memory_resource>
#include <optional>
#include <span>
#include <vector>

namespace views {

/// What an HStack and a VStack have in common: children in a row along an axis.
class LinearStack {
  public:
    /// `alignment` counts across the axis only.
    LinearStack(Axis axis, Alignment alignment, double spacing, Views children);

    Size sizeThatFits(const Proposal& proposal, LayoutContext& context) const;
    std::optional<double> fixedLength(Axis axis,
                                      std::optional<double> acrossOffer,
                                      LayoutContext& context) const;
    void draw(const Placement& place, LayoutContext& context, Recorder& recorder) const;
    double firstBaseline(const Proposal& proposal, LayoutContext& context) const;

  private:
    const StackLayout& laidOut(const Proposal& proposal, LayoutContext& context) const;
    StackLayout layOut(const Proposal& proposal, LayoutContext& context) const;
    /// The size of a child for an offer.
    Size measured(const View& child, const Proposal& offer, LayoutContext& context) const;
    std::pmr::vector<Flexibility> flexibilities(const Proposal& proposal,
                                                LayoutContext& context) const;
    /// Puts the children behind each other along the axis; answers how much they take.
    double spread(std::span<Placement> children) const;
    /// Puts the children where the alignment wants them across the axis; answers how much they
    /// take.
    double align(std::span<Placement> children) const;
    double alignOnBaseline(std::span<Placement> children, LayoutContext& context) const;

    Axis axis_;
    Alignment alignment_;
    double spacing_;
    Views children_;
};

}  // namespace views

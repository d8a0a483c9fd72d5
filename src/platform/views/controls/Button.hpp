#pragma once

#include "platform/intents/ArchivedAction.hpp"
#include "platform/views/view/View.hpp"

#include <optional>
#include <string>
#include <utility>

namespace views {

/// A plain button: its label is all that is drawn, and the label's frame is what can be pressed. A
/// press runs the action.
class Button : public Modifiers<Button> {
  public:
    Button(intents::ArchivedAction action, View label);

    /// A disabled button stays as it looks and does not react.
    Button disabled(bool isDisabled) const& { return Button(*this).disabled(isDisabled); }
    Button disabled(bool isDisabled) &&;
    /// What a screen reader says instead of the label's texts.
    Button accessibilityLabel(std::string text) const& {
        return Button(*this).accessibilityLabel(std::move(text));
    }
    Button accessibilityLabel(std::string text) &&;

    Size sizeThatFits(const Proposal& proposal, LayoutContext& context) const;
    double firstBaseline(const Proposal& proposal, LayoutContext& context) const;
    std::optional<double> fixedLength(Axis axis,
                                      std::optional<double> acrossOffer,
                                      LayoutContext& context) const {
        return label_.node().fixedLength(axis, acrossOffer, context);
    }
    void draw(const Placement& place, LayoutContext& context, Recorder& recorder) const;

  private:
    intents::ArchivedAction action_;
    View label_;
    bool enabled_ = true;
    std::string accessibilityLabel_;
};

}  // namespace views

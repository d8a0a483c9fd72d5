#include "platform/views/controls/Button.hpp"

#include "platform/views/scene/Recorder.hpp"

namespace views {

Button::Button(intents::ArchivedAction action, View label)
    : action_(std::move(action)), label_(std::move(label)) {}

Button Button::disabled(bool isDisabled) && {
    enabled_ = !isDisabled;
    return std::move(*this);
}

Button Button::accessibilityLabel(std::string text) && {
    accessibilityLabel_ = std::move(text);
    return std::move(*this);
}

Size Button::sizeThatFits(const Proposal& proposal, LayoutContext& context) const {
    return label_.sizeThatFits(proposal, context);
}

double Button::firstBaseline(const Proposal& proposal, LayoutContext& context) const {
    return label_.firstBaseline(proposal, context);
}

void Button::draw(const Placement& place, LayoutContext& context, Recorder& recorder) const {
    recorder.control({.frame = place.frame,
                      .label = accessibilityLabel_,
                      .enabled = enabled_,
                      .action = action_},
                     [&] { label_.draw(place, context, recorder); });
}

}  // namespace views

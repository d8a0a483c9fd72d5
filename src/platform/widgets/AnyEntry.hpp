#pragma once

#include "platform/foundation/Date.hpp"
#include "platform/foundation/json/Encoder.hpp"
#include "platform/views/view/View.hpp"

#include <any>
#include <functional>
#include <memory>
#include <optional>
#include <utility>

namespace widgets {

/// An entry of a timeline: a date, and a `state(entry)` that answers the optional encodable value
/// shown.
template <class Entry>
concept TimelineEntry = requires(const Entry& entry) {
    { entry.date } -> std::convertible_to<foundation::Date>;
    state(entry).has_value();
};

/// An entry of some widget together with that widget's content, so that it can be drawn, or looked
/// into, by those who do not know its type.
class AnyEntry {
  public:
    template <TimelineEntry Entry>
    AnyEntry(Entry entry, std::function<views::View(const Entry&)> content)
        : date_(entry.date), hasState_(state(entry).has_value()) {
        const auto shared = std::make_shared<const Entry>(std::move(entry));
        state_ = [shared] { return state(*shared) ? std::any(*state(*shared)) : std::any(); };
        content_ = [shared, content = std::move(content)] { return content(*shared); };
        encodeState_ = [shared](foundation::Encoder& encoder, std::string_view key) {
            if (state(*shared))
                encoder.encodeMember(key, *state(*shared));
            else
                encoder.encodeMember(key, nullptr);
        };
    }

    foundation::Date date() const { return date_; }
    bool hasState() const { return hasState_; }
    /// The state; nothing where there is none, or one of another type.
    template <class State>
    std::optional<State> stateAs() const {
        const std::any any = state_();
        const State* const state = std::any_cast<State>(&any);
        return state ? std::optional(*state) : std::nullopt;
    }
    /// Builds the widget's view. Requires a build scope.
    views::View content() const { return content_(); }
    /// Writes the state, or null, as a member.
    void encodeState(foundation::Encoder& encoder, std::string_view key) const {
        encodeState_(encoder, key);
    }

  private:
    foundation::Date date_;
    bool hasState_;
    std::function<std::any()> state_;
    std::function<views::View()> content_;
    std::function<void(foundation::Encoder&, std::string_view)> encodeState_;
};

}  // namespace widgets

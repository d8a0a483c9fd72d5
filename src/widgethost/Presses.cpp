#include "widgethost/Presses.hpp"

#include <cstddef>

namespace widgethost {

namespace {

/// More presses than a person makes while the extension starts are an accident.
constexpr std::size_t most = 32;

}  // namespace

void Presses::add(Slot slot, const intents::ArchivedAction& action) {
    if (presses_.size() < most)
        presses_.push_back({.number = next_++, .slot = slot, .action = action});
}

void Presses::performFirst(ExtensionLink& link) {
    Press& press = presses_.front();
    press.state = State::sent;
    link.perform(press.action, [this, number = press.number] { done(number); });
}

void Presses::announced() {
    if (!presses_.empty() && presses_.front().state == State::sent)
        presses_.front().state = State::announced;
}

void Presses::ended(Ending ending) {
    if (presses_.empty() || presses_.front().state == State::waiting)
        return;
    if (ending == Ending::fromOutside && presses_.front().state == State::sent)
        presses_.front().state = State::waiting;
    else
        presses_.pop_front();
}

void Presses::done(std::uint64_t number) {
    if (presses_.empty() || presses_.front().number != number)
        return;
    const Slot slot = presses_.front().slot;
    presses_.pop_front();
    onDone_(slot);
}

}  // namespace widgethost

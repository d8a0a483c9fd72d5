#pragma once

#include "platform/intents/ArchivedAction.hpp"
#include "widgethost/ExtensionLink.hpp"

#include <cstdint>
#include <deque>
#include <functional>

namespace widgethost {

/// The presses that have not come to their end, in the order in which they were made: the first is
/// being performed, or waits until the extension may be started. One whose process was ended from
/// outside before it announced anything is performed again: no host application can have heard of
/// it.
class Presses {
  public:
    using Slot = ExtensionLink::Slot;

    /// `onDone` is told of each that came to its end.
    explicit Presses(std::function<void(Slot)> onDone) : onDone_(std::move(onDone)) {}

    void add(Slot slot, const intents::ArchivedAction& action);
    bool isWaiting() const { return !presses_.empty() && presses_.front().state == State::waiting; }

    /// Hands the first to the extension. Requires that it is waiting.
    void performFirst(ExtensionLink& link);

    /// The extension has announced what the first did.
    void announced();

    /// The process that performed the first is no more.
    void ended(Ending ending);

  private:
    enum class State { waiting, sent, announced };
    struct Press {
        std::uint64_t number = 0;
        Slot slot = 0;
        intents::ArchivedAction action;
        State state = State::waiting;
    };

    void done(std::uint64_t number);

    std::function<void(Slot)> onDone_;
    std::deque<Press> presses_;
    std::uint64_t next_ = 0;
};

}  // namespace widgethost

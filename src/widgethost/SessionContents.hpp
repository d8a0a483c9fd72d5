#pragma once

#include "platform/foundation/SystemClock.hpp"
#include "widgethost/CardState.hpp"
#include "widgethost/FolderWatch.hpp"
#include "widgethost/Presses.hpp"
#include "widgethost/ReloadPacing.hpp"
#include "widgethost/Session.hpp"
#include "widgethost/Supervisor.hpp"
#include "widgethost/WidgetCenterService.hpp"

#include <deque>
#include <list>
#include <map>

namespace widgethost {

/// Cards wait in a line for their faces. One is asked for at a time, so that the one under which
/// the extension stops is known.
struct Session::Contents {
    using Slot = ExtensionLink::Slot;

    explicit Contents(const SessionOptions& options);

    Slot open(std::string kind, double scale, Occasion occasion, Show show);
    void close(Slot slot);
    void setScale(Slot slot, double scale);
    void press(Slot slot, const intents::ArchivedAction& action);

    void want(Slot slot);
    void want(const ReloadPacing::Kinds& kinds);

    std::vector<remote::WidgetDescription> gallery;
    std::function<void()> onGalleryChanged;
    ReloadPacing pacing;

  private:
    void started();
    void stopped(Ending ending);
    void take(std::vector<remote::WidgetDescription> widgets);

    void enqueue(Slot slot);
    void goOn();
    void askNext();
    void ask(ExtensionLink& link, Slot slot);
    void lend(ExtensionLink& link, Slot slot);
    void answered(Slot slot, const std::optional<remote::Face>& face);
    void showStopped(CardState& card);
    void showThatNothingComes();
    CardState* card(Slot slot);

    void askWhoIsDue();
    void setTimer();

    void post(const std::string& name);
    void changed();
    void restart();

    std::map<Slot, CardState> cards_;
    Slot nextSlot_ = 1;
    std::deque<Slot> waiting_;
    std::optional<Slot> asked_;
    Presses presses_;
    std::uint64_t introduced_ = 0;  // number of the extension's process that has told its widgets

    foundation::SystemClock clock_;
    WallClockTimer timer_;
    std::vector<std::string> notifications_;  // that the extension may send
    std::optional<WidgetCenterService> center_;
    Supervisor supervisor_;
    std::list<FolderWatch> watches_;
};

}  // namespace widgethost

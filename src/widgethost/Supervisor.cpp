#include "widgethost/Supervisor.hpp"

#include "platform/foundation/Message.hpp"

#include <algorithm>
#include <iostream>
#include <system_error>
#include <utility>

namespace widgethost {

using foundation::message;

Supervisor::Supervisor(SessionOptions options, Events events)
    : options_(std::move(options)), events_(std::move(events)) {}

ExtensionLink* Supervisor::link() {
    resting_ = after(options_.rest, [this] { end(); });
    // What is asked of a process whose end nobody has noticed yet would be lost.
    if (link_ && link_->isDead())
        stopped();
    if (link_)
        return link_.get();
    if (earliestStart() > Instant::clock::now()) {
        postpone();
        return nullptr;
    }
    try {
        link_ = std::make_unique<ExtensionLink>(
            options_, LinkEvents{.onPost = events_.onPost, .onClosed = [this] { stopped(); }});
    } catch (const std::system_error& error) {
        std::cerr << "nurva: "
                  << message("no se puede arrancar la extensión: %@", {std::string(error.what())})
                  << std::endl;
        blame(Ending::byItself);
        postpone();
        return nullptr;
    }
    ++number_;
    events_.onStarted();
    return link_.get();
}

void Supervisor::blame(Ending ending) {
    (ending == Ending::fromOutside ? kills_ : stops_).happens(Instant::clock::now());
}

Instant Supervisor::earliestStart() const {
    return std::max(stops_.earliest(), kills_.earliest());
}

void Supervisor::stopped() {
    const std::unique_ptr<ExtensionLink> link = std::move(link_);
    events_.onStopped(link->end());
}

void Supervisor::postpone() {
    const auto wait = std::chrono::ceil<std::chrono::milliseconds>(std::max(
        earliestStart() - Instant::clock::now(), Instant::duration(std::chrono::seconds(1))));
    if (!postponed_)
        postponed_ = after(wait, [this] {
            postponed_.reset();
            events_.onMayStart();
        });
}

}  // namespace widgethost

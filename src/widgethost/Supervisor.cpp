#include "widgethost/Supervisor.hpp"

#include "platform/foundation/localization/Message.hpp"

#include <algorithm>
#include <chrono>
#include <iostream>
#include <system_error>
#include <utility>

namespace widgethost {

using foundation::message;

Supervisor::Supervisor(SessionOptions options, Events events)
    : options_(std::move(options)), events_(std::move(events)) {}

ExtensionLink* Supervisor::link() {
    restLater();
    // What is asked of a process whose end nobody has noticed yet would be lost.
    if (link_ && link_->isDead())
        stopped();
    if (link_)
        return link_.get();
    if (limit_.earliest() > Instant::clock::now()) {
        postponeTo(limit_.earliest());
        return nullptr;
    }
    limit_.started();
    try {
        link_ = std::make_unique<ExtensionLink>(
            options_, LinkEvents{.onPost = events_.onPost, .onClosed = [this] { stopped(); }});
    } catch (const std::system_error& error) {
        std::cerr << "nurva: "
                  << message("no se puede arrancar la extensión: %@", {std::string(error.what())})
                  << std::endl;
        blame(Ending::byItself);
        postponeTo(std::max(limit_.earliest(), Instant::clock::now() + std::chrono::seconds(1)));
        return nullptr;
    }
    ++number_;
    events_.onStarted();
    return link_.get();
}

void Supervisor::blame(Ending ending) {
    const Instant now = Instant::clock::now();
    ending == Ending::fromOutside ? limit_.killed(now) : limit_.stopped(now);
}

void Supervisor::restLater() {
    resting_ =
        after(options_.rest, [this] { link_ && link_->isWaitedFor() ? restLater() : end(); });
}

void Supervisor::stopped() {
    const std::unique_ptr<ExtensionLink> link = std::move(link_);
    events_.onStopped(link->end());
}

void Supervisor::postponeTo(Instant when) {
    const auto wait = std::chrono::ceil<std::chrono::milliseconds>(when - Instant::clock::now());
    postponed_ = after(wait, [this] {
        postponed_.reset();
        events_.onMayStart();
    });
}

}  // namespace widgethost

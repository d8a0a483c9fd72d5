#include "widgethost/Supervisor.hpp"

#include "platform/foundation/Message.hpp"

#include <iostream>
#include <system_error>
#include <utility>

namespace widgethost {

using foundation::message;

Supervisor::Supervisor(const SessionOptions& options, Events events)
    : program_(options.extension),
      patience_(options.patience),
      rest_(options.rest),
      events_(std::move(events)) {}

ExtensionLink* Supervisor::link() {
    resting_ = after(rest_, [this] { end(); });
    if (link_)
        return link_.get();
    if (stops_.earliest() > Instant::clock::now()) {
        postpone();
        return nullptr;
    }
    try {
        link_ = std::make_unique<ExtensionLink>(
            program_, patience_,
            LinkEvents{.onPost = events_.onPost, .onClosed = [this] { stopped(); }});
    } catch (const std::system_error& error) {
        std::cerr << "nurva: "
                  << message("no se puede arrancar la extensión: %@", {std::string(error.what())})
                  << std::endl;
        blame();
        postpone();
        return nullptr;
    }
    ++number_;
    events_.onStarted();
    return link_.get();
}

void Supervisor::blame() {
    stops_.happens(Instant::clock::now());
}

void Supervisor::stopped() {
    link_.reset();
    events_.onStopped();
}

void Supervisor::postpone() {
    const auto wait = std::chrono::ceil<std::chrono::milliseconds>(std::max(
        stops_.earliest() - Instant::clock::now(), Instant::duration(std::chrono::seconds(1))));
    if (!postponed_)
        postponed_ = after(wait, [this] {
            postponed_.reset();
            events_.onMayStart();
        });
}

}  // namespace widgethost

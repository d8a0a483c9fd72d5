#include "widgethost/ExtensionLink.hpp"

#include "platform/remote/Connection.hpp"
#include "platform/remote/Protocol.hpp"

#include <cerrno>
#include <csignal>
#include <system_error>
#include <utility>

namespace widgethost {

namespace {

using remote::check;

struct SlotDeleter {
    void operator()(sd_bus_slot* slot) const { sd_bus_slot_unref(slot); }
};

const char* member(Occasion occasion) {
    switch (occasion) {
        case Occasion::placeholder:
            return "Placeholder";
        case Occasion::snapshot:
            return "Snapshot";
        case Occasion::timeline:
            return "Timeline";
    }
    return nullptr;
}

/// Takes an answer apart; nothing where it is an error or makes no sense.
template <class Read>
auto understood(sd_bus_message& answer, Read read) -> std::optional<decltype(read(answer))> {
    if (sd_bus_message_is_method_error(&answer, nullptr) > 0)
        return std::nullopt;
    try {
        return read(answer);
    } catch (const std::system_error&) {
        return std::nullopt;
    }
}

}  // namespace

struct ExtensionLink::Call {
    ExtensionLink* link = nullptr;
    Answer then;
    std::unique_ptr<sd_bus_slot, SlotDeleter> slot;
};

ExtensionLink::ExtensionLink(const SessionOptions& options, LinkEvents events)
    : patience_(options.patience),
      events_(std::move(events)),
      process_(options.extension, options.requiresSandbox) {
    connection_.emplace(remote::connect(process_.takeSocket(), remote::End::widgetHost),
                        [this] { close(); });
    check(sd_bus_add_object(connection_->bus(), nullptr, remote::protocol::path, posted, this));
}

ExtensionLink::~ExtensionLink() = default;

bool ExtensionLink::isWaitedFor() const {
    return !calls_.empty();
}

Ending ExtensionLink::end() {
    connection_.reset();
    const int status = process_.end();
    if (process_.wasKilled())
        return Ending::hung;
    return status == 128 + SIGKILL ? Ending::fromOutside : Ending::byItself;
}

void ExtensionLink::listWidgets(std::function<void(std::vector<remote::WidgetDescription>)> then) {
    ask(method("Widgets"), [then = std::move(then)](sd_bus_message& answer) {
        then(understood(answer, remote::readGallery)
                 .value_or(std::vector<remote::WidgetDescription>()));
    });
}

void ExtensionLink::lend(Slot slot, const remote::PictureMemory& memory) {
    const foundation::BusMessage call = method("Lend");
    check(sd_bus_message_append(call.get(), "uh", slot, memory.descriptor().number()));
    send(call);
}

void ExtensionLink::takeBack(Slot slot) {
    const foundation::BusMessage call = method("Return");
    check(sd_bus_message_append(call.get(), "u", slot));
    send(call);
}

void ExtensionLink::requestFace(Occasion occasion,
                                const std::string& kind,
                                double scale,
                                Slot slot,
                                std::function<void(std::optional<remote::Face>)> then) {
    const foundation::BusMessage call = method(member(occasion));
    remote::write(*call, kind);
    check(sd_bus_message_append(call.get(), "du", scale, slot));
    ask(call, [then = std::move(then)](sd_bus_message& answer) {
        then(understood(answer, remote::readFace));
    });
}

void ExtensionLink::perform(const intents::ArchivedAction& action, std::function<void()> then) {
    const foundation::BusMessage call = method("Perform");
    remote::write(*call, action);
    ask(call, [then = std::move(then)](sd_bus_message&) { then(); });
}

foundation::BusMessage ExtensionLink::method(const char* member) const {
    sd_bus_message* made = nullptr;
    check(sd_bus_message_new_method_call(connection_->bus(), &made, nullptr, remote::protocol::path,
                                         remote::protocol::interface, member));
    return foundation::BusMessage(made);
}

void ExtensionLink::send(const foundation::BusMessage& call) const {
    // A connection that is gone says so by itself.
    check(sd_bus_message_set_expect_reply(call.get(), false));
    sd_bus_send(connection_->bus(), call.get(), nullptr);
}

void ExtensionLink::ask(const foundation::BusMessage& call, Answer then) {
    Call& made = calls_.emplace_back(Call{.link = this, .then = std::move(then)});
    sd_bus_slot* slot = nullptr;
    // What cannot be sent any more is not answered: the connection says that it is gone.
    sd_bus_call_async(connection_->bus(), &slot, call.get(), answered, &made,
                      static_cast<std::uint64_t>(patience_.count()));
    made.slot.reset(slot);
}

int ExtensionLink::answered(sd_bus_message* answer, void* data, sd_bus_error*) {
    Call& call = *static_cast<Call*>(data);
    ExtensionLink& link = *call.link;
    // A connection that is gone answers what is left unanswered itself, in the same words.
    const bool isUnanswered = sd_bus_message_is_method_error(answer, SD_BUS_ERROR_NO_REPLY) > 0 ||
                              sd_bus_message_is_method_error(answer, SD_BUS_ERROR_TIMEOUT) > 0;
    const bool isHung = isUnanswered && sd_bus_is_open(link.connection_->bus()) > 0;
    const Answer then = std::move(call.then);
    link.calls_.remove_if([&](const Call& other) { return &other == &call; });
    if (isHung)
        link.process_.kill();
    if (isUnanswered)
        link.close();
    else
        then(*answer);
    return 1;
}

int ExtensionLink::posted(sd_bus_message* post, void* data, sd_bus_error*) {
    if (sd_bus_message_is_method_call(post, remote::protocol::interface, "Post") <= 0)
        return 0;
    if (const auto name = understood(*post, remote::readText))
        static_cast<ExtensionLink*>(data)->events_.onPost(*name);
    return 1;
}

void ExtensionLink::close() {
    const std::function<void()> onClosed = std::exchange(events_.onClosed, {});
    if (onClosed)
        onClosed();
}

}  // namespace widgethost

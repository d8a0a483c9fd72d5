#include "platform/process/ExtensionService.hpp"

#include "platform/foundation/localization/LocalizedString.hpp"
#include "platform/remote/Protocol.hpp"

#include <fcntl.h>

#include <array>
#include <cerrno>
#include <stdexcept>
#include <string_view>
#include <utility>

namespace process {

namespace {

using remote::check;

/// An entry to be drawn, and when to ask again.
struct Due {
    widgets::AnyEntry entry;
    std::optional<foundation::Date> reloadAfter;
};

/// What of a scene is spoken and pressed. Each control is also spoken, in the same order.
std::vector<remote::Element> elements(const views::Scene& scene) {
    std::vector<remote::Element> elements;
    auto control = scene.controls.begin();
    for (const views::AccessibilityElement& spoken : scene.accessibility) {
        remote::Element element{.role = spoken.role,
                                .label = spoken.label,
                                .enabled = spoken.enabled,
                                .frame = spoken.frame};
        if (spoken.role == views::AccessibilityRole::button)
            element.action = (control++)->action;
        elements.push_back(std::move(element));
    }
    return elements;
}

foundation::BusMessage replyTo(sd_bus_message& call) {
    sd_bus_message* made = nullptr;
    check(sd_bus_message_new_method_return(&call, &made));
    return foundation::BusMessage(made);
}

void send(const foundation::BusMessage& message) {
    check(sd_bus_send(sd_bus_message_get_bus(message.get()), message.get(), nullptr));
}

}  // namespace

ExtensionService::ExtensionService(const Extension& extension,
                                   const foundation::Environment& environment,
                                   LoopTasks& tasks)
    : extension_(extension),
      environment_(environment),
      tasks_(tasks),
      renderer_(environment, measurer_),
      runtime_(extension.actions()) {}

bool ExtensionService::answer(sd_bus_message& call) {
    const auto asksFor = [&](const char* member) {
        return sd_bus_message_is_method_call(&call, remote::protocol::interface, member) > 0;
    };
    if (asksFor("Widgets"))
        listWidgets(call);
    else if (asksFor("Lend"))
        lend(call);
    else if (asksFor("Return"))
        giveBack(call);
    else if (asksFor("Placeholder"))
        draw(Occasion::placeholder, call);
    else if (asksFor("Snapshot"))
        draw(Occasion::snapshot, call);
    else if (asksFor("Timeline"))
        draw(Occasion::timeline, call);
    else if (asksFor("Perform"))
        perform(call);
    else
        return false;
    return true;
}

void ExtensionService::listWidgets(sd_bus_message& call) {
    const auto text = [&](const std::string& key) {
        return foundation::localizedString(key, environment_.mainBundle, environment_.locale);
    };
    std::vector<remote::WidgetDescription> gallery;
    for (const widgets::StaticConfiguration& widget : extension_.widgets())
        gallery.push_back({.kind = widget.kind(),
                           .displayName = text(widget.displayNameKey()),
                           .description = text(widget.descriptionKey()),
                           .families = widget.families()});
    const foundation::BusMessage reply = replyTo(call);
    remote::write(*reply, gallery);
    send(reply);
}

void ExtensionService::lend(sd_bus_message& call) {
    const std::uint32_t slot = remote::readCount(call);
    int lent = -1;
    check(sd_bus_message_read_basic(&call, 'h', &lent));
    foundation::FileDescriptor descriptor(::fcntl(lent, F_DUPFD_CLOEXEC, 0));
    if (!descriptor)
        throw std::system_error(errno, std::generic_category(), "lent memory");
    memories_.insert_or_assign(slot, remote::PictureMemory::map(std::move(descriptor)));
    send(replyTo(call));
}

void ExtensionService::giveBack(sd_bus_message& call) {
    memories_.erase(remote::readCount(call));
    send(replyTo(call));
}

void ExtensionService::draw(Occasion occasion, sd_bus_message& call) {
    const std::string kind = remote::readText(call);
    const double scale = remote::readNumber(call);
    const auto memory = memories_.find(remote::readCount(call));
    const widgets::WidgetBundle bundle = extension_.widgets();
    const widgets::StaticConfiguration* const widget = widgets::widgetOfKind(bundle, kind);
    if (!widget || memory == memories_.end())
        throw std::invalid_argument("no such widget, or no such memory");

    const widgets::WidgetFamily family = widget->families().front();
    const widgets::TimelineProviderContext context{
        .environment = environment_, .family = family, .isPreview = occasion != Occasion::timeline};
    const Due due = [&]() -> Due {
        if (occasion == Occasion::placeholder)
            return {widget->placeholder(context), std::nullopt};
        if (occasion == Occasion::snapshot)
            return {widget->snapshot(context), std::nullopt};
        const auto timeline = widget->timeline(context);
        return {timeline.entries.front(), timeline.policy.earliest};
    }();

    const views::Size size = widgets::cardSize(family);
    const std::size_t pixels = canvas::pixelSize(size, scale).count();
    if (pixels > memory->second.pixels().size())
        throw std::invalid_argument("the lent memory is too small for the picture");
    const views::Scene scene = renderer_.render(
        due.entry, {.size = size, .margin = widgets::contentMargin, .scale = scale});
    canvas_.draw(scene, scale, memory->second.pixels().first(pixels));

    const foundation::BusMessage reply = replyTo(call);
    remote::write(*reply, remote::Face{.date = due.entry.date(),
                                       .reloadAfter = due.reloadAfter,
                                       .elements = elements(scene)});
    send(reply);
}

void ExtensionService::perform(sd_bus_message& call) {
    const intents::ArchivedAction action = remote::readAction(call);
    const std::uint64_t number = nextPerformance_++;
    // Behind whatever the action posts, which is on its way before the answer.
    runtime_.perform(action, environment_, [this, number] {
        tasks_.add([this, number] { send(replyTo(*performing_.extract(number).mapped())); });
    });
    performing_.emplace(number, sd_bus_message_ref(&call));
}

}  // namespace process

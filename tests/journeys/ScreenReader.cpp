#include "journeys/ScreenReader.hpp"

#include "journeys/Waiting.hpp"
#include "platform/foundation/notifications/SessionBus.hpp"
#include "platform/remote/Wire.hpp"

#include <algorithm>
#include <cerrno>
#include <stdexcept>
#include <system_error>
#include <utility>

namespace journeys {

namespace {

using remote::check;

constexpr const char* accessible = "org.a11y.atspi.Accessible";
constexpr const char* registry = "org.a11y.atspi.Registry";
constexpr const char* root = "/org/a11y/atspi/accessible/root";
constexpr unsigned activeState = 1;
constexpr unsigned focusedState = 12;
constexpr unsigned sensitiveState = 24;

/// Calls a method. The answer; null where there is none, for what was there is gone at any time.
template <class... Arguments>
foundation::BusMessage call(sd_bus* bus,
                            const std::string& application,
                            const std::string& path,
                            const char* interface,
                            const char* member,
                            const char* types = "",
                            Arguments... arguments) {
    sd_bus_message* answer = nullptr;
    sd_bus_call_method(bus, application.c_str(), path.c_str(), interface, member, nullptr, &answer,
                       types, arguments...);
    return foundation::BusMessage(answer);
}

std::string text(const foundation::BusMessage& answer, const char* signature = "s") {
    const char* value = "";
    if (answer && *signature == 'v')
        check(sd_bus_message_enter_container(answer.get(), 'v', "s"));
    if (answer)
        check(sd_bus_message_read(answer.get(), "s", &value));
    return value;
}

std::string accessibilityAddress() {
    const auto session =
        foundation::openSessionBus(std::chrono::steady_clock::now() + support::patience);
    if (!session)
        throw std::system_error(ENOTCONN, std::generic_category(), "session bus");
    return text(call(session.get(), "org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress"));
}

}  // namespace

ScreenReader::ScreenReader() {
    sd_bus* bus = nullptr;
    check(sd_bus_new(&bus));
    bus_.reset(bus);
    check(sd_bus_set_address(bus, accessibilityAddress().c_str()));
    check(sd_bus_set_bus_client(bus, true));
    check(sd_bus_start(bus));
    constexpr std::uint64_t microseconds = std::chrono::microseconds(support::patience).count();
    check(sd_bus_set_method_call_timeout(bus, microseconds));
}

std::vector<std::string> ScreenReader::windows() const {
    std::vector<std::string> titles;
    for (const Heard& window : toplevels())
        titles.push_back(window.name);
    return titles;
}

std::vector<Heard> ScreenReader::window(const std::string& title) const {
    const auto all = toplevels();
    const auto found = std::ranges::find(all, title, &Heard::name);
    std::vector<Heard> heard;
    if (found != all.end())
        collect(*found, heard);
    return heard;
}

std::optional<Heard> ScreenReader::find(const std::string& title,
                                        const std::string& name,
                                        const std::string& after) const {
    const auto all = window(title);
    auto from = all.begin();
    if (!after.empty())
        from = std::ranges::find(all, after, &Heard::name);
    const auto found =
        std::find_if(from, all.end(), [&](const auto& one) { return one.name == name; });
    return found == all.end() ? std::nullopt : std::optional(*found);
}

std::optional<Heard> ScreenReader::await(const std::string& title,
                                         const std::string& name,
                                         const std::string& after) const {
    std::optional<Heard> heard;
    soon([&] {
        heard = find(title, name, after);
        return heard.has_value();
    });
    return heard;
}

bool ScreenReader::press(const Heard& control) const {
    const auto answer = call(bus_.get(), control.application, control.path, "org.a11y.atspi.Action",
                             "DoAction", "i", 0);
    int isDone = 0;
    return answer && sd_bus_message_read(answer.get(), "b", &isDone) > 0 && isDone;
}

std::vector<Heard> ScreenReader::toplevels() const {
    std::vector<Heard> windows;
    for (const Heard& application : children({.application = registry, .path = root}))
        for (Heard& window : children(application))
            windows.push_back(std::move(window));
    return windows;
}

std::vector<Heard> ScreenReader::children(const Heard& parent) const {
    std::vector<Heard> all;
    const auto answer =
        call(bus_.get(), parent.application, parent.path, accessible, "GetChildren");
    if (!answer)
        return all;
    check(sd_bus_message_enter_container(answer.get(), 'a', "(so)"));
    const char* application = nullptr;
    const char* path = nullptr;
    while (sd_bus_message_read(answer.get(), "(so)", &application, &path) > 0)
        all.push_back(described(application, path));
    return all;
}

void ScreenReader::collect(const Heard& parent, std::vector<Heard>& all) const {
    all.push_back(parent);
    for (const Heard& child : children(parent))
        collect(child, all);
}

Heard ScreenReader::described(std::string application, std::string path) const {
    Heard heard{.application = std::move(application), .path = std::move(path)};
    const auto ask = [&](const char* interface, const char* member, auto... arguments) {
        return call(bus_.get(), heard.application, heard.path, interface, member, arguments...);
    };
    heard.role = text(ask(accessible, "GetRoleName"));
    heard.name = text(ask("org.freedesktop.DBus.Properties", "Get", "ss", accessible, "Name"), "v");
    std::uint32_t states = 0;
    if (const auto answer = ask(accessible, "GetState"))
        if (sd_bus_message_enter_container(answer.get(), 'a', "u") > 0)
            check(sd_bus_message_read(answer.get(), "u", &states));
    heard.isEnabled = states >> sensitiveState & 1;
    heard.isFocused = states >> focusedState & 1;
    heard.isActive = states >> activeState & 1;
    constexpr std::uint32_t inWindow = 1;
    if (const auto answer = ask("org.a11y.atspi.Component", "GetExtents", "u", inWindow))
        check(sd_bus_message_read(answer.get(), "(iiii)", &heard.place.x, &heard.place.y,
                                  &heard.place.width, &heard.place.height));
    return heard;
}

}  // namespace journeys

// Another program on the session bus: says "ready", then for each signal of an interface that
// begins with "org.nurva" where it came from in a line: path, interface, member, arguments.

#include <systemd/sd-bus.h>

#include <cstdint>
#include <cstdio>

int main() {
    sd_bus* bus = nullptr;
    if (sd_bus_open_user(&bus) < 0)
        return 1;
    const auto tell = [](sd_bus_message* message, void*, sd_bus_error*) {
        std::printf("%s %s %s %s\n", sd_bus_message_get_path(message),
                    sd_bus_message_get_interface(message), sd_bus_message_get_member(message),
                    sd_bus_message_is_empty(message) > 0 ? "none" : "some");
        std::fflush(stdout);
        return 0;
    };
    if (sd_bus_add_match(bus, nullptr, "type='signal',path='/'", tell, nullptr) < 0)
        return 1;
    std::puts("ready");
    std::fflush(stdout);
    while (sd_bus_process(bus, nullptr) >= 0 && sd_bus_wait(bus, UINT64_MAX) >= 0) {
    }
    return 0;
}

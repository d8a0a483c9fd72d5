#pragma once

#include <systemd/sd-bus.h>

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

// The parts that values in a message are made of. Writing throws std::system_error where the
// message cannot hold them, reading where the message holds something else.
namespace remote {

/// Throws std::system_error for a result below zero, as sd-bus answers them.
int check(int result);

/// Throws for what is of the right type and makes no sense.
[[noreturn]] void refuse();

void write(sd_bus_message& message, std::string_view text);
void writeTruth(sd_bus_message& message, bool truth);
void writeNumber(sd_bus_message& message, double number);

std::string readText(sd_bus_message& message);
bool readTruth(sd_bus_message& message);
double readNumber(sd_bus_message& message);
std::uint32_t readCount(sd_bus_message& message);
/// A number that geometry and clocks can be reckoned with.
double readFinite(sd_bus_message& message);

template <class Value>
void writeBasic(sd_bus_message& message, char type, Value value) {
    check(sd_bus_message_append_basic(&message, type, &value));
}

template <class Value>
Value readBasic(sd_bus_message& message, char type) {
    Value value{};
    if (check(sd_bus_message_read_basic(&message, type, &value)) == 0)
        refuse();
    return value;
}

/// Opens a container for the time that `fill` takes.
template <class Fill>
void writing(sd_bus_message& message, char container, const std::string& contents, Fill fill) {
    check(sd_bus_message_open_container(&message, container, contents.c_str()));
    fill();
    check(sd_bus_message_close_container(&message));
}

/// What `read` reads inside a container.
template <class Read>
auto reading(sd_bus_message& message, char container, const std::string& contents, Read read) {
    if (check(sd_bus_message_enter_container(&message, container, contents.c_str())) == 0)
        refuse();
    auto result = read();
    check(sd_bus_message_exit_container(&message));
    return result;
}

/// The members of an array, each as `readMember` reads it.
template <class ReadMember>
auto readArray(sd_bus_message& message, const char* type, ReadMember readMember) {
    return reading(message, 'a', type, [&] {
        std::vector<decltype(readMember())> members;
        while (check(sd_bus_message_at_end(&message, false)) == 0)
            members.push_back(readMember());
        return members;
    });
}

}  // namespace remote

#include "platform/remote/WireParts.hpp"

#include <cerrno>
#include <cmath>
#include <system_error>

namespace remote {

int check(int result) {
    if (result < 0)
        throw std::system_error(-result, std::generic_category(), "message");
    return result;
}

void refuse() {
    throw std::system_error(EBADMSG, std::generic_category(), "message");
}

void write(sd_bus_message& message, std::string_view text) {
    check(sd_bus_message_append_array(&message, 'y', text.data(), text.size()));
}

void writeTruth(sd_bus_message& message, bool truth) {
    writeBasic(message, 'b', static_cast<int>(truth));
}

void writeNumber(sd_bus_message& message, double number) {
    writeBasic(message, 'd', number);
}

std::string readText(sd_bus_message& message) {
    const void* bytes = nullptr;
    std::size_t size = 0;
    if (check(sd_bus_message_read_array(&message, 'y', &bytes, &size)) == 0)
        refuse();
    return {static_cast<const char*>(bytes), size};
}

bool readTruth(sd_bus_message& message) {
    return readBasic<int>(message, 'b') != 0;
}

double readNumber(sd_bus_message& message) {
    return readBasic<double>(message, 'd');
}

std::uint32_t readCount(sd_bus_message& message) {
    return readBasic<std::uint32_t>(message, 'u');
}

double readFinite(sd_bus_message& message) {
    const double number = readNumber(message);
    if (!std::isfinite(number))
        refuse();
    return number;
}

}  // namespace remote

#include "platform/foundation/files/FileDescriptor.hpp"
#include "platform/foundation/notifications/SessionBus.hpp"
#include "platform/remote/Connection.hpp"
#include "platform/remote/Wire.hpp"

#include <sys/socket.h>
#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <iterator>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>
#include <utility>

namespace {

/// How often a value was read.
std::size_t valuesRead = 0;

/// Reads a message as one kind of value. What is taken is the same after it was written again.
template <class Read>
void readAs(sd_bus_message& message, Read readValue) {
    std::optional<decltype(readValue(message))> value;
    try {
        sd_bus_message_rewind(&message, true);
        value = readValue(message);
    } catch (const std::system_error&) {
        return;
    }
    ++valuesRead;
    sd_bus_message* made = nullptr;
    remote::check(
        sd_bus_message_new_signal(sd_bus_message_get_bus(&message), &made, "/", "a.b", "C"));
    const foundation::BusMessage copy(made);
    remote::write(*copy, *value);
    remote::check(sd_bus_message_seal(made, 1, 0));
    remote::check(sd_bus_message_rewind(made, true));
    const auto again = readValue(*copy);
    const auto same = [](const auto& one, const auto& other) { return one == other; };
    const bool holdsNaN = !same(*value, *value);
    if (!holdsNaN && !same(again, *value))
        std::abort();
}

int answer(sd_bus_message* message, void*, sd_bus_error*) {
    readAs(*message, remote::readFace);
    readAs(*message, remote::readGallery);
    readAs(*message, remote::readAction);
    readAs(*message, remote::readText);
    return 1;
}

std::string littleEndian(std::size_t number) {
    std::string bytes;
    for (int i = 0; i < 4; ++i, number >>= 8)
        bytes += static_cast<char>(number & 0xff);
    return bytes;
}

void align(std::string& bytes, std::size_t boundary) {
    bytes.append((boundary - bytes.size() % boundary) % boundary, '\0');
}

/// A whole message with a body of this type.
std::string messageOf(std::string_view type, std::string_view body) {
    using namespace std::string_literals;
    std::string fields;
    const auto append = [&](char number, char kind, std::string_view value) {
        align(fields, 8);
        fields += {number, '\1', kind, '\0'};
        fields += kind == 'g' ? std::string(1, static_cast<char>(value.size()))
                              : littleEndian(value.size());
        fields += value;
        fields += '\0';
    };
    append(1, 'o', "/a");
    append(2, 's', "a.b");
    append(3, 's', "C");
    append(8, 'g', type);
    std::string message = "l\1\1\1"s + littleEndian(body.size()) + littleEndian(1) +
                          littleEndian(fields.size()) + fields;
    align(message, 8);
    return message.append(body);
}

/// The input as what the other end sends: as it is, or, where its first byte names a type, as the
/// body of a message of that type, since few bytes made up by chance are a message.
std::string sent(std::string_view input) {
    static constexpr std::string_view types[] = {"dbda(ybay(dddd)baya(ayv))", "a(ayayayau)",
                                                 "aya(ayv)", "ay"};
    const std::size_t type =
        input.empty() ? std::size(types) : static_cast<unsigned char>(input.front());
    return std::string(type < std::size(types) ? messageOf(types[type], input.substr(1)) : input);
}

/// Has the widget host take whatever the other end says, once it is let in.
void hear(std::string_view said) {
    int ends[2];
    if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0, ends) != 0)
        std::abort();
    foundation::FileDescriptor here(ends[0]);
    const foundation::FileDescriptor there(ends[1]);
    using namespace std::string_literals;
    const std::string all =
        "\0AUTH ANONYMOUS 616e6f6e796d6f7573\r\nNEGOTIATE_UNIX_FD\r\nBEGIN\r\n"s.append(said);
    if (::write(there.number(), all.data(), all.size()) != static_cast<ssize_t>(all.size()))
        std::abort();
    // It can still be answered.
    ::shutdown(there.number(), SHUT_WR);
    const foundation::SessionBus bus = remote::connect(std::move(here), remote::End::widgetHost);
    remote::check(sd_bus_add_filter(bus.get(), nullptr, answer, nullptr));
    while (sd_bus_process(bus.get(), nullptr) > 0)
        continue;
}

/// Whether a message as it should be is heard: else nothing at all would be tried here.
bool hearsWhatIsSaid() {
    hear(messageOf("ay", littleEndian(1) + "a"));
    return valuesRead == 1;
}

}  // namespace

/// Takes any bytes as what the other process says.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const bool isHeard = hearsWhatIsSaid();
    if (!isHeard)
        std::abort();
    hear(sent({reinterpret_cast<const char*>(data), size}));
    return 0;
}

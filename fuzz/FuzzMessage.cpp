#include "platform/foundation/SessionBus.hpp"
#include "platform/remote/Wire.hpp"

#include <sys/socket.h>
#include <systemd/sd-id128.h>
#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <system_error>

namespace {

/// Reads what a message says in one of the ways in which messages are read.
int answer(sd_bus_message* message, void*, sd_bus_error*) {
    const auto read = [&](auto readValue) {
        try {
            sd_bus_message_rewind(message, true);
            readValue(*message);
        } catch (const std::system_error&) {
            return;
        }
    };
    read(remote::readFace);
    read(remote::readGallery);
    read(remote::readAction);
    read(remote::readText);
    return 1;
}

/// The end of a connection whose other end says whatever the input says, once it is let in.
foundation::SessionBus connectedTo(std::string_view input) {
    int ends[2];
    if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0, ends) != 0)
        return nullptr;
    using namespace std::string_view_literals;
    constexpr std::string_view letIn =
        "\0AUTH ANONYMOUS 616e6f6e796d6f7573\r\nNEGOTIATE_UNIX_FD\r\nBEGIN\r\n"sv;
    [[maybe_unused]] auto written = ::write(ends[1], letIn.data(), letIn.size());
    written = ::write(ends[1], input.data(), input.size());
    ::close(ends[1]);
    sd_bus* made = nullptr;
    remote::check(sd_bus_new(&made));
    foundation::SessionBus bus(made);
    remote::check(sd_bus_set_fd(made, ends[0], ends[0]));
    remote::check(sd_bus_set_server(
        made, true, SD_ID128_MAKE(01, 02, 03, 04, 05, 06, 07, 08, 09, 0a, 0b, 0c, 0d, 0e, 0f, 10)));
    remote::check(sd_bus_set_anonymous(made, true));
    remote::check(sd_bus_negotiate_fds(made, true));
    remote::check(sd_bus_add_filter(made, nullptr, answer, nullptr));
    return sd_bus_start(made) < 0 ? nullptr : std::move(bus);
}

}  // namespace

/// Takes any bytes as what the other process says.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const foundation::SessionBus bus = connectedTo({reinterpret_cast<const char*>(data), size});
    while (bus && sd_bus_process(bus.get(), nullptr) > 0)
        continue;
    return 0;
}

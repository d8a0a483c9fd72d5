#include "platform/remote/Connection.hpp"

#include "platform/remote/WireParts.hpp"

#include <systemd/sd-id128.h>

namespace remote {

foundation::SessionBus connect(foundation::FileDescriptor socket, End end) {
    sd_bus* made = nullptr;
    check(sd_bus_new(&made));
    foundation::SessionBus bus(made);
    const int number = socket.release();
    check(sd_bus_set_fd(made, number, number));
    if (end == End::widgetHost) {
        sd_id128_t id;
        check(sd_id128_randomize(&id));
        check(sd_bus_set_server(made, true, id));
    }
    check(sd_bus_set_anonymous(made, true));
    check(sd_bus_negotiate_fds(made, true));
    check(sd_bus_start(made));
    return bus;
}

}  // namespace remote

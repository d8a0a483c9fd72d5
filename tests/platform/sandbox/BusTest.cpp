#include "platform/sandbox/Child.hpp"
#include "platform/sandbox/Confinement.hpp"
#include "platform/sandbox/Sockets.hpp"

#include <gtest/gtest.h>
#include <systemd/sd-bus.h>
#include <unistd.h>

#include <cstdint>
#include <memory>
#include <string>
#include <system_error>
#include <thread>
#include <utility>

namespace sandbox {
namespace {

struct Closing {
    void operator()(sd_bus* bus) const { ::sd_bus_flush_close_unref(bus); }
};
using Bus = std::unique_ptr<sd_bus, Closing>;

int check(int result) {
    if (result < 0)
        throw std::system_error(-result, std::generic_category());
    return result;
}

Bus busOver(const foundation::FileDescriptor& socket) {
    sd_bus* bus = nullptr;
    check(::sd_bus_new(&bus));
    Bus owned(bus);
    const int own = check(::dup(socket.number()));
    check(::sd_bus_set_fd(bus, own, own));
    return owned;
}

int answerPing(sd_bus_message* message, void*, sd_bus_error*) {
    return ::sd_bus_reply_method_return(message, "s", "pong");
}

constexpr sd_bus_vtable methods[] = {
    SD_BUS_VTABLE_START(0),
    SD_BUS_METHOD("Ping", "", "s", answerPing, SD_BUS_VTABLE_UNPRIVILEGED),
    SD_BUS_VTABLE_END,
};

/// Answers calls until the peer goes away.
void serve(const foundation::FileDescriptor& socket) {
    const Bus bus = busOver(socket);
    check(::sd_bus_set_server(bus.get(), 1, sd_id128_t{{1}}));
    check(::sd_bus_add_object_vtable(bus.get(), nullptr, "/", "test.Peer", methods, nullptr));
    check(::sd_bus_start(bus.get()));
    int done = 0;
    while ((done = ::sd_bus_process(bus.get(), nullptr)) >= 0)
        if (done == 0)
            check(::sd_bus_wait(bus.get(), UINT64_MAX));
}

std::string ping(const foundation::FileDescriptor& socket) {
    const Bus bus = busOver(socket);
    check(::sd_bus_start(bus.get()));
    sd_bus_message* reply = nullptr;
    check(::sd_bus_call_method(bus.get(), nullptr, "/", "test.Peer", "Ping", nullptr, &reply, ""));
    const char* text = "";
    check(::sd_bus_message_read(reply, "s", &text));
    const std::string answer = text;
    ::sd_bus_message_unref(reply);
    return answer;
}

TEST(Bus, WorksAtBothEndsOfASocketThatIsThere) {
    EXPECT_EQ(outcomeInChild([] {
                  SocketPair sockets;
                  confine({});
                  std::jthread server([socket = std::move(sockets.theirs)] { serve(socket); });
                  const auto socket = std::move(sockets.ours);
                  return ping(socket) == "pong" ? 0 : 1;
              }),
              0);
}

}  // namespace
}  // namespace sandbox

#include "platform/sandbox/Sockets.hpp"

#include <netinet/in.h>
#include <sys/socket.h>
#include <sys/un.h>

#include <cerrno>
#include <cstddef>
#include <cstring>
#include <system_error>

namespace {

using Call = int (*)(int, const sockaddr*, socklen_t);

template <typename Address>
int apply(Call call,
          const foundation::FileDescriptor& socket,
          const Address& address,
          std::size_t size) {
    const auto* const general = reinterpret_cast<const sockaddr*>(&address);
    return call(socket.number(), general, static_cast<socklen_t>(size)) == 0 ? 0 : errno;
}

foundation::FileDescriptor makeSocket(int family) {
    return foundation::FileDescriptor(::socket(family, SOCK_STREAM | SOCK_CLOEXEC, 0));
}

int applyLocal(Call call, const foundation::FileDescriptor& socket, const std::string& name) {
    sockaddr_un address{.sun_family = AF_UNIX, .sun_path = {}};
    name.copy(address.sun_path, sizeof address.sun_path - 1);
    return apply(call, socket, address, offsetof(sockaddr_un, sun_path) + name.size());
}

int applyLoopback(Call call, in_port_t port) {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(port);
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    return apply(call, makeSocket(AF_INET), address, sizeof address);
}

/// A message of one byte with room for one descriptor.
struct Message {
    char byte = 'x';
    iovec bytes{.iov_base = &byte, .iov_len = 1};
    alignas(cmsghdr) char control[CMSG_SPACE(sizeof(int))] = {};
    msghdr header{};

    Message() {
        header.msg_iov = &bytes;
        header.msg_iovlen = 1;
        header.msg_control = control;
        header.msg_controllen = sizeof control;
    }
};

[[noreturn]] void fail() {
    throw std::system_error(errno, std::generic_category());
}

}  // namespace

int bindLocal(const std::string& name) {
    return applyLocal(::bind, makeSocket(AF_UNIX), name);
}

int connectLocal(const std::string& name) {
    return applyLocal(::connect, makeSocket(AF_UNIX), name);
}

int bindAnyPort() {
    return applyLoopback(::bind, 0);
}

int connectToClosedPort() {
    return applyLoopback(::connect, 1);
}

foundation::FileDescriptor listenLocal(const std::string& name) {
    auto socket = makeSocket(AF_UNIX);
    if (applyLocal(::bind, socket, name) != 0 || ::listen(socket.number(), 8) != 0)
        fail();
    return socket;
}

SocketPair::SocketPair() {
    int ends[2];
    if (::socketpair(AF_UNIX, SOCK_STREAM, 0, ends) != 0)
        fail();
    ours = foundation::FileDescriptor(ends[0]);
    theirs = foundation::FileDescriptor(ends[1]);
}

void sendDescriptor(int socket, int descriptor) {
    Message message;
    cmsghdr* const part = CMSG_FIRSTHDR(&message.header);
    part->cmsg_level = SOL_SOCKET;
    part->cmsg_type = SCM_RIGHTS;
    part->cmsg_len = CMSG_LEN(sizeof descriptor);
    std::memcpy(CMSG_DATA(part), &descriptor, sizeof descriptor);
    if (::sendmsg(socket, &message.header, 0) != 1)
        fail();
}

foundation::FileDescriptor receiveDescriptor(int socket) {
    Message message;
    if (::recvmsg(socket, &message.header, MSG_CMSG_CLOEXEC) != 1)
        fail();
    int descriptor = -1;
    std::memcpy(&descriptor, CMSG_DATA(CMSG_FIRSTHDR(&message.header)), sizeof descriptor);
    return foundation::FileDescriptor(descriptor);
}

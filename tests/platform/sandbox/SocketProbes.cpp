#include "platform/sandbox/Probe.hpp"

#include <netinet/in.h>
#include <sys/socket.h>
#include <sys/syscall.h>

namespace {

constexpr int noFile = -1;
constexpr sockaddr noAddress{};

Probe socketOf(std::string name, int family, int type, int protocol = 0) {
    return callProbe(std::move(name), EPERM, Outside::works, SYS_socket, family, type, protocol);
}

int makePair(const Grounds&) {
    int ends[2];
    return call(SYS_socketpair, AF_UNIX, SOCK_STREAM, 0, ends);
}

}  // namespace

std::vector<Probe> socketProbes() {
    using enum Outside;
    return {
        socketOf("UnixStreamSocket", AF_UNIX, SOCK_STREAM),
        socketOf("UnixDatagramSocket", AF_UNIX, SOCK_DGRAM),
        socketOf("TCPSocket", AF_INET, SOCK_STREAM),
        socketOf("UDPSocket", AF_INET, SOCK_DGRAM),
        socketOf("TCP6Socket", AF_INET6, SOCK_STREAM),
        socketOf("RawSocket", AF_INET, SOCK_RAW, IPPROTO_ICMP),
        socketOf("NetlinkSocket", AF_NETLINK, SOCK_RAW),
        {"SocketPair", EPERM, works, makePair},
        callProbe("Connect", EPERM, answersOtherwise, SYS_connect, noFile, nullptr, 0),
        callProbe("Bind", EPERM, answersOtherwise, SYS_bind, noFile, nullptr, 0),
        callProbe("Listen", EPERM, answersOtherwise, SYS_listen, noFile, 1),
        callProbe("Accept", EPERM, answersOtherwise, SYS_accept, noFile, nullptr, nullptr),
        callProbe("Accept4", EPERM, answersOtherwise, SYS_accept4, noFile, nullptr, nullptr, 0),
        callProbe("SendToAnAddress", EPERM, answersOtherwise, SYS_sendto, noFile, "x", 1, 0,
                  &noAddress, sizeof noAddress),
        callProbe("AttachAFilterToASocket", EPERM, answersOtherwise, SYS_setsockopt, noFile,
                  SOL_SOCKET, SO_ATTACH_FILTER, nullptr, 0),
        callProbe("SetAnOptionOfAnotherLevel", EPERM, answersOtherwise, SYS_setsockopt, noFile,
                  SOL_SOCKET + 1, SO_SNDBUF, nullptr, 0),
    };
}

#include "robustness/SystemCallFailure.hpp"

#include "platform/foundation/files/FileDescriptor.hpp"

#include <linux/filter.h>
#include <linux/seccomp.h>
#include <poll.h>
#include <sys/ioctl.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <optional>
#include <stdexcept>

namespace {

using foundation::FileDescriptor;

constexpr std::size_t mostCalls = 100'000;

bool isForMemory(int call) {
    static constexpr std::array calls{SYS_brk,    SYS_mmap,    SYS_munmap,
                                      SYS_mremap, SYS_madvise, SYS_mprotect};
    return std::ranges::find(calls, call) != calls.end();
}

/// Has every system call of this process answered by whoever holds the listener that it gives,
/// except for what hands the listener over and what ends the process.
int listenerOfOwnCalls(int channel) {
    constexpr auto number = static_cast<std::uint32_t>(offsetof(seccomp_data, nr));
    constexpr auto firstArgument = static_cast<std::uint32_t>(offsetof(seccomp_data, args));
    std::array filter = {
        sock_filter BPF_STMT(BPF_LD | BPF_W | BPF_ABS, number),
        sock_filter BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, SYS_exit_group, 3, 0),
        sock_filter BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, SYS_sendmsg, 0, 3),
        sock_filter BPF_STMT(BPF_LD | BPF_W | BPF_ABS, firstArgument),
        sock_filter BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, static_cast<std::uint32_t>(channel), 0, 1),
        sock_filter BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW),
        sock_filter BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_USER_NOTIF),
    };
    const sock_fprog program{static_cast<unsigned short>(filter.size()), filter.data()};
    if (::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) != 0)
        return -1;
    return static_cast<int>(::syscall(SYS_seccomp, SECCOMP_SET_MODE_FILTER,
                                      SECCOMP_FILTER_FLAG_NEW_LISTENER, &program));
}

/// Room for one descriptor beside a message of one byte.
struct Parcel {
    char byte = 0;
    iovec bytes{&byte, 1};
    alignas(cmsghdr) std::array<char, CMSG_SPACE(sizeof(int))> room{};
    msghdr message{.msg_name = nullptr,
                   .msg_namelen = 0,
                   .msg_iov = &bytes,
                   .msg_iovlen = 1,
                   .msg_control = room.data(),
                   .msg_controllen = room.size(),
                   .msg_flags = 0};
};

bool handOver(int descriptor, int channel) {
    Parcel parcel;
    cmsghdr* const header = CMSG_FIRSTHDR(&parcel.message);
    header->cmsg_level = SOL_SOCKET;
    header->cmsg_type = SCM_RIGHTS;
    header->cmsg_len = CMSG_LEN(sizeof descriptor);
    std::memcpy(CMSG_DATA(header), &descriptor, sizeof descriptor);
    return ::sendmsg(channel, &parcel.message, 0) == 1;
}

FileDescriptor takenOver(int channel) {
    Parcel parcel;
    if (::recvmsg(channel, &parcel.message, MSG_CMSG_CLOEXEC) != 1)
        return FileDescriptor();
    int descriptor = -1;
    if (const cmsghdr* const header = CMSG_FIRSTHDR(&parcel.message))
        std::memcpy(&descriptor, CMSG_DATA(header), sizeof descriptor);
    return FileDescriptor(descriptor);
}

/// Answers the calls of a process until it ends.
class Answers {
  public:
    Answers(const SystemCallFailure& failure, const FileDescriptor& listener, pid_t process)
        : failure_(failure), listener_(listener), process_(process) {}

    Ending untilTheEnd() {
        Ending ending;
        while (const auto call = next()) {
            ending.calls.push_back(call->data.nr);
            if (ending.calls.size() == mostCalls)
                ::kill(process_, SIGKILL);
            answer(*call, isToFail(ending.calls));
        }
        int status = 0;
        ::waitpid(process_, &status, 0);
        ending.status = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
        return ending;
    }

  private:
    /// The next call; nothing when the process is no more.
    std::optional<seccomp_notif> next() const {
        while (true) {
            pollfd ready{.fd = listener_.number(), .events = POLLIN, .revents = 0};
            if (::poll(&ready, 1, -1) < 0 && errno == EINTR)
                continue;
            if ((ready.revents & POLLIN) == 0)
                return std::nullopt;
            seccomp_notif call{};
            if (::ioctl(listener_.number(), SECCOMP_IOCTL_NOTIF_RECV, &call) == 0)
                return call;
        }
    }

    bool isToFail(const std::vector<int>& calls) const {
        const auto turn = static_cast<std::size_t>(failure_.turn);
        // The C library gives up where a futex fails as none can.
        if (turn == 0 || calls.size() < turn || calls.back() == SYS_futex)
            return false;
        return calls.size() == turn || (failure_.forGood && calls.back() == calls[turn - 1]);
    }

    void answer(const seccomp_notif& call, bool fails) const {
        seccomp_notif_resp response{};
        response.id = call.id;
        if (fails)
            response.error = -failure_.error;
        else
            response.flags = SECCOMP_USER_NOTIF_FLAG_CONTINUE;
        ::ioctl(listener_.number(), SECCOMP_IOCTL_NOTIF_SEND, &response);
    }

    const SystemCallFailure& failure_;
    const FileDescriptor& listener_;
    const pid_t process_;
};

[[noreturn]] void perform(const std::function<int()>& work, int channel) {
    const int listener = listenerOfOwnCalls(channel);
    if (listener < 0 || !handOver(listener, channel))
        ::_exit(127);
    ::_exit(work());
}

}  // namespace

bool SystemCallFailure::isOfMemory(const Ending& ending) const {
    const auto index = static_cast<std::size_t>(turn) - 1;
    return index < ending.calls.size() && isForMemory(ending.calls[index]);
}

std::ostream& operator<<(std::ostream& stream, const SystemCallFailure& failure) {
    return stream << "call " << failure.turn << " failing with " << failure.error
                  << (failure.forGood ? " for good" : "");
}

std::ostream& operator<<(std::ostream& stream, const Ending& ending) {
    stream << "status " << ending.status << " after calls";
    for (const int call : ending.calls)
        stream << ' ' << call;
    return stream;
}

bool canAnswerSystemCalls() {
    try {
        return performedWith({}, [] { return ::getppid() > 0 ? 0 : 1; }).status == 0;
    } catch (const std::runtime_error&) {
        return false;
    }
}

Ending performedWith(const SystemCallFailure& failure, const std::function<int()>& work) {
    int ends[2];
    if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends) != 0)
        throw std::runtime_error("no socket pair");
    const FileDescriptor here(ends[0]);
    FileDescriptor there(ends[1]);
    const pid_t process = ::fork();
    if (process == 0)
        perform(work, there.number());
    there = FileDescriptor();
    const FileDescriptor listener = takenOver(here.number());
    if (!listener) {
        ::waitpid(process, nullptr, 0);
        throw std::runtime_error("system calls cannot be answered here");
    }
    return Answers(failure, listener, process).untilTheEnd();
}

#include "platform/sandbox/ConditionalCalls.hpp"

#include <fcntl.h>
#include <sched.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>

namespace sandbox {
namespace {

scmp_arg_cmp equals(unsigned argument, scmp_datum_t value) {
    return {.arg = argument, .op = SCMP_CMP_EQ, .datum_a = value, .datum_b = 0};
}

scmp_arg_cmp bits(unsigned argument, scmp_datum_t mask, scmp_datum_t value) {
    return {.arg = argument, .op = SCMP_CMP_MASKED_EQ, .datum_a = mask, .datum_b = value};
}

/// As the C library starts a thread. It tries `clone3` first, whose flags no filter can see.
constexpr scmp_datum_t threadFlags = CLONE_VM | CLONE_FS | CLONE_FILES | CLONE_SYSVSEM |
                                     CLONE_SIGHAND | CLONE_THREAD | CLONE_SETTLS |
                                     CLONE_PARENT_SETTID | CLONE_CHILD_CLEARTID;

constexpr scmp_datum_t creating = O_CREAT | (O_TMPFILE & ~O_DIRECTORY);
constexpr scmp_datum_t setID = S_ISUID | S_ISGID;

/// Landlock before its third version lets files that may only be read be emptied, and none of its
/// versions keeps a new file from running as its owner when another user starts it.
std::vector<ConditionalCall> openings() {
    return {
        {SCMP_SYS(openat), {bits(2, creating | O_TRUNC, 0)}},
        {SCMP_SYS(openat), {bits(2, O_TRUNC, 0), bits(3, setID, 0)}},
        {SCMP_SYS(openat), {bits(2, O_TRUNC | O_ACCMODE, O_TRUNC | O_WRONLY), bits(3, setID, 0)}},
        {SCMP_SYS(openat), {bits(2, O_TRUNC | O_ACCMODE, O_TRUNC | O_RDWR), bits(3, setID, 0)}},
        {SCMP_SYS(fchmod), {bits(1, setID, 0)}},
    };
}

}  // namespace

std::vector<ConditionalCall> conditionalCalls() {
    std::vector<ConditionalCall> calls = openings();
    // A descriptor could be told to send signals to any process, so only some commands.
    for (const int command : {F_DUPFD, F_GETFD, F_SETFD, F_GETFL, F_SETFL, F_GETLK, F_SETLK,
                              F_SETLKW, F_DUPFD_CLOEXEC, F_GET_SEALS})
        calls.push_back({SCMP_SYS(fcntl), {equals(1, static_cast<scmp_datum_t>(command))}});
    for (const int option : {SO_SNDBUF, SO_RCVBUF, SO_PASSCRED})
        calls.push_back({SCMP_SYS(setsockopt),
                         {equals(1, SOL_SOCKET), equals(2, static_cast<scmp_datum_t>(option))}});
    // Without an address: only to the peer.
    calls.push_back({SCMP_SYS(sendto), {equals(4, 0)}});
    calls.push_back({SCMP_SYS(clone), {equals(0, threadFlags)}});
    // Stopping oneself takes a signal to one's own thread.
    calls.push_back({SCMP_SYS(tgkill), {equals(0, static_cast<scmp_datum_t>(::getpid()))}});
    calls.push_back({SCMP_SYS(mmap), {bits(2, PROT_EXEC, 0)}});
    calls.push_back({SCMP_SYS(mprotect), {bits(2, PROT_EXEC, 0)}});
    calls.push_back({SCMP_SYS(prctl), {equals(0, PR_SET_NAME)}});
    // Limits are read, not set.
    calls.push_back({SCMP_SYS(prlimit64), {equals(0, 0), equals(2, 0)}});
    return calls;
}

}  // namespace sandbox

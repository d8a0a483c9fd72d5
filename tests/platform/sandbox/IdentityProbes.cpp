#include "platform/sandbox/Probe.hpp"

#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/syscall.h>

namespace {

int raiseLimit(const Grounds&) {
    rlimit limit{};
    ::getrlimit(RLIMIT_NOFILE, &limit);
    return call(SYS_prlimit64, 0, RLIMIT_NOFILE, &limit, nullptr);
}

int setLimit(const Grounds&) {
    rlimit limit{};
    ::getrlimit(RLIMIT_NOFILE, &limit);
    return call(SYS_setrlimit, RLIMIT_NOFILE, &limit);
}

int readLimitOfParent(const Grounds&) {
    rlimit limit{};
    return call(SYS_prlimit64, ::getppid(), RLIMIT_NOFILE, nullptr, &limit);
}

}  // namespace

std::vector<Probe> identityProbes() {
    using enum Outside;
    return {
        callProbe("SetTheUser", EPERM, works, SYS_setuid, ::getuid()),
        callProbe("SetTheGroup", EPERM, works, SYS_setgid, ::getgid()),
        callProbe("SetAllUsers", EPERM, works, SYS_setresuid, -1, -1, -1),
        callProbe("SetTheGroups", EPERM, works, SYS_setgroups, 0, nullptr),
        callProbe("SetCapabilities", EPERM, answersOtherwise, SYS_capset, nullptr, nullptr),
        callProbe("BecomeDumpable", EPERM, works, SYS_prctl, PR_SET_DUMPABLE, 1, 0, 0, 0),
        callProbe("DropASafeguard", EPERM, works, SYS_prctl, PR_SET_PDEATHSIG, 0, 0, 0, 0),
        callProbe("ChangeThePersonality", EPERM, works, SYS_personality, 0xffffffff),
        {"RaiseALimit", EPERM, works, raiseLimit},
        {"SetALimit", EPERM, works, setLimit},
        {"ReadALimitOfTheParent", EPERM, works, readLimitOfParent},
    };
}

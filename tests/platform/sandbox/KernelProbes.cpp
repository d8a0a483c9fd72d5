#include "platform/sandbox/Probe.hpp"

#include <fcntl.h>
#include <linux/keyctl.h>
#include <linux/landlock.h>
#include <linux/perf_event.h>
#include <linux/seccomp.h>
#include <sys/ioctl.h>
#include <sys/syscall.h>
#include <termios.h>

#include <ctime>

namespace {

constexpr std::uint32_t filterAction = SECCOMP_RET_ERRNO;

int measure(const Grounds&) {
    perf_event_attr event{};
    event.type = PERF_TYPE_SOFTWARE;
    event.size = sizeof event;
    event.config = PERF_COUNT_SW_TASK_CLOCK;
    return call(SYS_perf_event_open, &event, 0, -1, -1, 0);
}

}  // namespace

std::vector<Probe> kernelProbes() {
    using enum Outside;
    return {
        callProbe("LoadAProgramIntoTheKernel", EPERM, answersOtherwise, SYS_bpf, -1, nullptr, 0),
        {"Measure", EPERM, works, measure},
        callProbe("HandlePageFaults", EPERM, works, SYS_userfaultfd, O_CLOEXEC),
        callProbe("NameAKeyring", EPERM, works, SYS_keyctl, KEYCTL_GET_KEYRING_ID,
                  KEY_SPEC_PROCESS_KEYRING, 1),
        callProbe("AddAKey", EPERM, answersOtherwise, SYS_add_key, "", "", nullptr, 0, 0),
        callProbe("RequestAKey", EPERM, answersOtherwise, SYS_request_key, "", "", nullptr, 0),
        callProbe("SetUpARing", EPERM, answersOtherwise, SYS_io_uring_setup, 0, nullptr),
        callProbe("EnterARing", EPERM, answersOtherwise, SYS_io_uring_enter, -1, 0, 0, 0, nullptr),
        callProbe("RegisterWithARing", EPERM, answersOtherwise, SYS_io_uring_register, -1, 0, 0, 0),
        callProbe("LoadAKernel", EPERM, answersOtherwise, SYS_kexec_load, 0, 17, nullptr, 1 << 30),
        callProbe("LoadAModule", EPERM, answersOtherwise, SYS_init_module, nullptr, 0, nullptr),
        callProbe("LoadAModuleFile", EPERM, answersOtherwise, SYS_finit_module, -1, nullptr, 0),
        callProbe("RemoveAModule", EPERM, answersOtherwise, SYS_delete_module, nullptr, 0),
        callProbe("Reboot", EPERM, answersOtherwise, SYS_reboot, 0, 0, 0, nullptr),
        callProbe("SwapOn", EPERM, answersOtherwise, SYS_swapon, "/missing", 0),
        callProbe("SwapOff", EPERM, answersOtherwise, SYS_swapoff, "/missing"),
        callProbe("SetTheTime", EPERM, works, SYS_settimeofday, nullptr, nullptr),
        callProbe("SetAClock", EPERM, answersOtherwise, SYS_clock_settime, CLOCK_MONOTONIC,
                  nullptr),
        callProbe("AdjustTheTime", EPERM, answersOtherwise, SYS_adjtimex, nullptr),
        callProbe("AskTheLog", EPERM, works, SYS_syslog, 10, nullptr, 0),
        callProbe("AccountProcesses", EPERM, answersOtherwise, SYS_acct, "/missing"),
        callProbe("AskForQuotas", EPERM, answersOtherwise, SYS_quotactl, -1, nullptr, 0, nullptr),
        callProbe("NameTheHost", EPERM, answersOtherwise, SYS_sethostname, nullptr, -1),
        callProbe("AddAFilter", EPERM, works, SYS_seccomp, SECCOMP_GET_ACTION_AVAIL, 0,
                  &filterAction),
        callProbe("AskForLandlock", EPERM, works, SYS_landlock_create_ruleset, nullptr, 0,
                  LANDLOCK_CREATE_RULESET_VERSION),
        callProbe("RestrictOneselfAgain", EPERM, answersOtherwise, SYS_landlock_restrict_self, -1,
                  0),
        callProbe("AddARule", EPERM, answersOtherwise, SYS_landlock_add_rule, -1, 0, nullptr, 0),
        callProbe("ControlADevice", EPERM, answersOtherwise, SYS_ioctl, 0, TCGETS, nullptr),
        callProbe("TypeIntoATerminal", EPERM, answersOtherwise, SYS_ioctl, -1, TIOCSTI, "x"),
        callProbe("ControlAFileByAnUnknownCommand", EPERM, answersOtherwise, SYS_fcntl, 0, 5000, 0),
    };
}

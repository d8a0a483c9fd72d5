#include "platform/sandbox/Probe.hpp"

#include <fcntl.h>
#include <sched.h>
#include <spawn.h>
#include <sys/ptrace.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <sys/uio.h>
#include <sys/wait.h>

#include <csignal>

namespace {

char programName[] = "/bin/true";
char* const programArguments[] = {programName, nullptr};

int waitFor(pid_t child) {
    if (child == 0)
        ::_exit(0);
    if (child < 0)
        return errno;
    return errorOf(::waitpid(child, nullptr, 0));
}

int execute(const Grounds&) {
    ::execv(programName, programArguments);
    return errno;
}

int executeFromContainer(const Grounds& grounds) {
    const std::string program = grounds.container() / "file";
    ::execv(program.c_str(), programArguments);
    return errno;
}

int executeDescriptor(const Grounds&) {
    ::syscall(SYS_execveat, AT_FDCWD, programName, programArguments, nullptr, 0);
    return errno;
}

int forkOnce(const Grounds&) {
    return waitFor(::fork());
}

int spawn(const Grounds&) {
    pid_t child = 0;
    const int error =
        ::posix_spawn(&child, programName, nullptr, nullptr, programArguments, nullptr);
    return error != 0 ? error : waitFor(child);
}

int cloneWith(unsigned long flags) {
    return waitFor(static_cast<pid_t>(::syscall(SYS_clone, flags | SIGCHLD, 0, 0, 0, 0)));
}

int signalParent(long number) {
    return call(number, ::getppid(), 0);
}

int signalThreadOfParent(const Grounds&) {
    return call(SYS_tgkill, ::getppid(), ::getppid(), 0);
}

int queueSignal(const Grounds&) {
    siginfo_t information{};
    information.si_code = SI_QUEUE;
    return call(SYS_rt_sigqueueinfo, ::getpid(), 0, &information);
}

int readMemory(long number) {
    char from = 'x';
    char to = 0;
    const iovec local{&to, 1};
    const iovec remote{&from, 1};
    return call(number, ::getpid(), &local, 1, &remote, 1, 0);
}

int haveSignalsSent(const Grounds& grounds) {
    const int file = ::open((grounds.bundle() / "file").c_str(), O_RDONLY);
    return call(SYS_fcntl, file, F_SETOWN, ::getppid());
}

}  // namespace

std::vector<Probe> processProbes() {
    using enum Outside;
    return {
        {"Execute", EPERM, works, execute},
        {"ExecuteFromTheContainer", EPERM, answersOtherwise, executeFromContainer},
        {"ExecuteADescriptor", EPERM, works, executeDescriptor},
        {"Fork", EPERM, works, forkOnce},
        {"Spawn", EPERM, works, spawn},
        {"CloneAProcess", EPERM, works, [](const Grounds&) { return cloneWith(0); }},
        {"CloneANamespace", EPERM, works,
         [](const Grounds&) { return cloneWith(CLONE_NEWUSER | CLONE_NEWNET); }},
        callProbe("CloneAThreadWithItsOwnFiles", EPERM, answersOtherwise, SYS_clone,
                  CLONE_THREAD | CLONE_NEWNS, 0, 0, 0, 0),
        callProbe("CloneByStructure", ENOSYS, answersOtherwise, SYS_clone3, nullptr, 0),
        callProbe("BeTraced", EPERM, works, SYS_ptrace, PTRACE_TRACEME, 0, 0, 0),
        {"ReadMemoryOfAProcess", EPERM, works,
         [](const Grounds&) { return readMemory(SYS_process_vm_readv); }},
        {"WriteMemoryOfAProcess", EPERM, works,
         [](const Grounds&) { return readMemory(SYS_process_vm_writev); }},
        {"SignalTheParent", EPERM, works, [](const Grounds&) { return signalParent(SYS_kill); }},
        {"SignalTheParentAsAThread", EPERM, works,
         [](const Grounds&) { return signalParent(SYS_tkill); }},
        {"SignalAThreadOfTheParent", EPERM, works, signalThreadOfParent},
        callProbe("SignalEverybody", EPERM, works, SYS_kill, -1, 0),
        {"QueueASignal", EPERM, works, queueSignal},
        {"OpenTheParentAsADescriptor", EPERM, works,
         [](const Grounds&) { return signalParent(SYS_pidfd_open); }},
        callProbe("SignalADescriptor", EPERM, answersOtherwise, SYS_pidfd_send_signal, -1, 0, 0, 0),
        callProbe("TakeADescriptorOfAProcess", EPERM, answersOtherwise, SYS_pidfd_getfd, -1, 0, 0),
        callProbe("CompareProcesses", EPERM, answersOtherwise, SYS_kcmp, 0, 0, 0, 0, 0),
        {"HaveSignalsSent", EPERM, works, haveSignalsSent},
        callProbe("LeaveTheSession", EPERM, works, SYS_setsid),
        callProbe("SetThePriority", EPERM, works, SYS_setpriority, PRIO_PROCESS, 0, 0),
        callProbe("ChooseProcessors", EPERM, answersOtherwise, SYS_sched_setaffinity, 0, 0,
                  nullptr),
    };
}

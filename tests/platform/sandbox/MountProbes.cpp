#include "platform/sandbox/Probe.hpp"

#include <sched.h>
#include <sys/syscall.h>

std::vector<Probe> mountProbes() {
    using enum Outside;
    return {
        callProbe("UnshareTheUsers", EPERM, answersOtherwise, SYS_unshare, CLONE_NEWUSER),
        callProbe("UnshareTheMounts", EPERM, works, SYS_unshare, CLONE_NEWNS),
        callProbe("UnshareNothing", EPERM, works, SYS_unshare, 0),
        callProbe("EnterANamespace", EPERM, answersOtherwise, SYS_setns, -1, 0),
        callProbe("Mount", EPERM, answersOtherwise, SYS_mount, "none", "/missing", "tmpfs", 0, 0),
        callProbe("Unmount", EPERM, answersOtherwise, SYS_umount2, "/missing", 0),
        callProbe("ChangeTheRoot", EPERM, works, SYS_chroot, "/"),
        callProbe("ChangeTheFolder", EPERM, works, SYS_chdir, "/"),
        callProbe("ChangeToAFolder", EPERM, answersOtherwise, SYS_fchdir, -1),
        callProbe("PivotTheRoot", EPERM, answersOtherwise, SYS_pivot_root, "/missing", "/missing"),
        callProbe("OpenAFileSystem", EPERM, works, SYS_fsopen, "tmpfs", 0),
        callProbe("OpenATree", EPERM, answersOtherwise, SYS_open_tree, -1, "missing", 0),
        callProbe("MoveAMount", EPERM, answersOtherwise, SYS_move_mount, -1, "", -1, "", 0),
        callProbe("ChangeAMount", EPERM, answersOtherwise, SYS_mount_setattr, -1, "", 0, nullptr,
                  0),
    };
}

#include "platform/sandbox/Probe.hpp"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/xattr.h>

namespace {

using Paths = std::function<int(const char* inside, const char* outside)>;

/// A probe with the names of a new file in the container and of an old one outside.
Probe withPaths(std::string name, const Paths& attempt) {
    return {std::move(name), EPERM, Outside::works, [=](const Grounds& grounds) {
                const std::string inside = grounds.container() / "new";
                const std::string outside = grounds.home() / "file";
                return attempt(inside.c_str(), outside.c_str());
            }};
}

int create(const Grounds& grounds, mode_t mode) {
    return errorOf(
        ::open((grounds.container() / "new").c_str(), O_WRONLY | O_CREAT | O_TRUNC, mode));
}

int emptyByReading(const Grounds& grounds) {
    return errorOf(::open((grounds.bundle() / "file").c_str(), O_RDONLY | O_TRUNC));
}

int changeMode(const Grounds& grounds) {
    const int file = ::open((grounds.container() / "file").c_str(), O_WRONLY);
    return errorOf(::fchmod(file, 04755));
}

}  // namespace

std::vector<Probe> metadataProbes() {
    using enum Outside;
    return {
        withPaths("LinkAFileIntoTheContainer",
                  [](auto inside, auto outside) { return errorOf(::link(outside, inside)); }),
        withPaths("MakeASymbolicLink",
                  [](auto inside, auto outside) { return errorOf(::symlink(outside, inside)); }),
        withPaths("MakeAPipe", [](auto inside, auto) { return errorOf(::mkfifo(inside, 0600)); }),
        withPaths("MakeASocketFile",
                  [](auto inside, auto) { return errorOf(::mknod(inside, S_IFSOCK | 0600, 0)); }),
        withPaths("ChangeTheModeByName",
                  [](auto, auto outside) { return errorOf(::chmod(outside, 0777)); }),
        withPaths("ChangeTheOwner",
                  [](auto, auto outside) { return errorOf(::chown(outside, ~0U, ~0U)); }),
        withPaths("ChangeTheLength",
                  [](auto, auto outside) { return errorOf(::truncate(outside, 0)); }),
        withPaths(
            "ChangeTheTimes",
            [](auto, auto outside) { return errorOf(::utimensat(AT_FDCWD, outside, nullptr, 0)); }),
        callProbe("SetAnAttribute", EPERM, answersOtherwise, SYS_setxattr, "/missing", "user.x", "",
                  0, 0),
        callProbe("RemoveAnAttribute", EPERM, answersOtherwise, SYS_removexattr, "/missing",
                  "user.x"),
        callProbe("NameAFileByHandle", EPERM, answersOtherwise, SYS_name_to_handle_at, -1, "",
                  nullptr, nullptr, 0),
        callProbe("OpenAFileByHandle", EPERM, answersOtherwise, SYS_open_by_handle_at, -1, nullptr,
                  0),
        callProbe("WatchFiles", EPERM, works, SYS_inotify_init1, 0),
        callProbe("WatchAllFiles", EPERM, works, SYS_fanotify_init, 0, 0),
        {"EmptyAFileByReading", EPERM, works, emptyByReading},
        {"CreateAFileThatRunsAsItsOwner", EPERM, works,
         [](const Grounds& grounds) { return create(grounds, 04755); }},
        {"MakeAFileRunAsItsOwner", EPERM, works, changeMode},
    };
}

#include "platform/sandbox/Probe.hpp"

#include <fcntl.h>

namespace {

namespace fs = std::filesystem;

Probe opening(std::string name, int flags, const std::function<fs::path(const Grounds&)>& path) {
    return {std::move(name), EACCES, Outside::works,
            [=](const Grounds& grounds) { return errorOf(::open(path(grounds).c_str(), flags)); }};
}

Probe opening(std::string name, int flags, const char* path) {
    return opening(std::move(name), flags, [=](const Grounds&) { return fs::path(path); });
}

/// Opens what /proc says of the parent.
Probe openingOfParent(std::string name, int flags, const char* file) {
    return opening(std::move(name), flags, [=](const Grounds&) {
        return fs::path("/proc") / std::to_string(::getppid()) / file;
    });
}

}  // namespace

std::vector<Probe> readingProbes() {
    constexpr int list = O_RDONLY | O_DIRECTORY;
    return {
        opening("ReadThePasswords", O_RDONLY, "/etc/passwd"),
        opening("ListTheRoot", list, "/"),
        opening("ListTheTemporaryFiles", list, "/tmp"),
        opening("ReadOwnMemoryMap", O_RDONLY, "/proc/self/maps"),
        opening("WriteOwnMemory", O_RDWR, "/proc/self/mem"),
        opening("ReadOwnEnvironment", O_RDONLY, "/proc/self/environ"),
        opening("ListProcesses", list, "/proc"),
        opening("ReadTheNameOfTheHost", O_RDONLY, "/proc/sys/kernel/hostname"),
        opening("OpenADevice", O_RDWR, "/dev/null"),
        opening("OpenTerminals", O_RDWR, "/dev/ptmx"),
        openingOfParent("ReadTheParentsEnvironment", O_RDONLY, "environ"),
        openingOfParent("ReadTheParentsArguments", O_RDONLY, "cmdline"),
        openingOfParent("WriteTheParentsMemory", O_RDWR, "mem"),
        openingOfParent("ListTheParentsDescriptors", list, "fd"),
        opening("ReadAFileOfTheHome", O_RDONLY,
                [](auto& grounds) { return grounds.home() / "file"; }),
        opening("ListTheHome", list, &Grounds::home),
        opening("ListTheFolderAbove", list,
                [](auto& grounds) { return grounds.container() / ".."; }),
        opening("ClimbOutOfTheContainer", O_RDONLY,
                [](auto& grounds) { return grounds.container() / "../home/file"; }),
        opening("FollowALinkOutOfTheContainer", O_RDWR,
                [](auto& grounds) { return grounds.container() / "way-out"; }),
    };
}

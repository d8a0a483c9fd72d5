#include "platform/sandbox/LandlockProbes.hpp"

#include "platform/sandbox/Sockets.hpp"

#include <fcntl.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <termios.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdio>

namespace {

int errorOf(long answer) {
    return answer < 0 ? errno : 0;
}

int execute(const std::string& path) {
    char* const arguments[] = {nullptr};
    return errorOf(::execv(path.c_str(), arguments));
}

int controlDevice() {
    termios settings{};
    return errorOf(::ioctl(::open(device.c_str(), O_RDONLY), TCGETS, &settings));
}

std::vector<LandlockProbe> fileProbes() {
    const auto inContainer = [](const Grounds& grounds) { return grounds.container() / "new"; };
    return {
        {"ReadAFile", 1, 0, EACCES,
         [](auto& grounds) {
             return errorOf(::open((grounds.home() / "file").c_str(), O_RDONLY));
         }},
        {"ListAFolder", 1, 0, EACCES,
         [](auto& grounds) { return errorOf(::open(grounds.home().c_str(), O_RDONLY)); }},
        {"WriteAFile", 1, 0, EACCES,
         [](auto& grounds) {
             return errorOf(::open((grounds.bundle() / "file").c_str(), O_WRONLY));
         }},
        {"ExecuteAFile", 1, ENOEXEC, EACCES,
         [](auto& grounds) { return execute(grounds.container() / "file"); }},
        {"MakeASymbolicLink", 1, 0, EACCES,
         [=](auto& grounds) { return errorOf(::symlink("/", inContainer(grounds).c_str())); }},
        {"MakeAPipe", 1, 0, EACCES,
         [=](auto& grounds) { return errorOf(::mkfifo(inContainer(grounds).c_str(), 0600)); }},
        {"MakeADevice", 1, 0, EACCES,
         [=](auto& grounds) {
             return errorOf(::mknod(inContainer(grounds).c_str(), S_IFCHR | 0600, 0));
         }},
        {"MakeASocketFile", 1, 0, EACCES,
         [=](auto& grounds) { return bindLocal(inContainer(grounds)); }},
        {"LinkAFileIntoTheContainer", 1, 0, EXDEV,
         [=](auto& grounds) {
             return errorOf(
                 ::link((grounds.home() / "file").c_str(), inContainer(grounds).c_str()));
         }},
        {"MoveAFileOutOfTheContainer", 1, 0, EACCES,
         [](auto& grounds) {
             return errorOf(::rename((grounds.container() / "file").c_str(),
                                     (grounds.home() / "new").c_str()));
         }},
        {"EmptyAFileByName", 3, 0, EACCES,
         [](auto& grounds) { return errorOf(::truncate((grounds.bundle() / "file").c_str(), 0)); }},
        {"EmptyAFileByReading", 3, 0, EACCES,
         [](auto& grounds) {
             return errorOf(::open((grounds.bundle() / "file").c_str(), O_RDONLY | O_TRUNC));
         }},
        {"ControlADevice", 5, ENOTTY, EACCES, [](auto&) { return controlDevice(); }},
    };
}

}  // namespace

std::vector<LandlockProbe> landlockProbes() {
    std::vector<LandlockProbe> probes = fileProbes();
    probes.push_back({"BindAPort", 4, 0, EACCES, [](auto&) { return bindAnyPort(); }});
    probes.push_back(
        {"ConnectToAPort", 4, ECONNREFUSED, EACCES, [](auto&) { return connectToClosedPort(); }});
    probes.push_back({"ConnectToAnAbstractSocket", 6, 0, EPERM,
                      [](auto&) { return connectLocal(abstractName(::getppid())); }});
    probes.push_back(
        {"SignalTheParent", 6, 0, EPERM, [](auto&) { return errorOf(::kill(::getppid(), 0)); }});
    return probes;
}

std::string abstractName(int parent) {
    return '\0' + std::string("nurva-sandbox-test-") + std::to_string(parent);
}

#include "widgethost/ExtensionProcess.hpp"

#include "platform/foundation/bundle/Bundle.hpp"
#include "platform/remote/Protocol.hpp"

#include <poll.h>
#include <spawn.h>
#include <sys/socket.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <string>
#include <string_view>
#include <system_error>
#include <utility>
#include <vector>

namespace widgethost {

namespace {

/// How long an action that is on its way may take to its end, in milliseconds.
constexpr int patience = 250;

[[noreturn]] void fail(int error, const std::string& what) {
    throw std::system_error(error, std::generic_category(), what);
}

/// Our variables, so that it finds the same bundle, and speaks the same language.
std::vector<std::string> variables() {
    std::vector<std::string> variables{"NURVA_BUNDLE=" +
                                       foundation::Bundle::main().path().string()};
    for (char** entry = environ; *entry; ++entry)
        if (!std::string_view(*entry).starts_with("NURVA_BUNDLE="))
            variables.emplace_back(*entry);
    return variables;
}

std::vector<char*> pointers(std::vector<std::string>& texts) {
    std::vector<char*> pointers;
    for (std::string& text : texts)
        pointers.push_back(text.data());
    pointers.push_back(nullptr);
    return pointers;
}

}  // namespace

ExtensionProcess::ExtensionProcess(const std::filesystem::path& program, bool requiresSandbox) {
    int ends[2];
    if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0, ends) != 0)
        fail(errno, "socketpair");
    socket_ = foundation::FileDescriptor(ends[0]);
    const foundation::FileDescriptor theirs(ends[1]);

    std::vector<std::string> arguments{program.string()};
    if (requiresSandbox)
        arguments.emplace_back("--require-sandbox");
    std::vector<std::string> environment = variables();
    posix_spawn_file_actions_t actions;
    posix_spawnattr_t attributes;
    ::posix_spawn_file_actions_init(&actions);
    ::posix_spawn_file_actions_adddup2(&actions, theirs.number(),
                                       remote::protocol::socketDescriptor);
    ::posix_spawnattr_init(&attributes);
    // Signals that this process waits for in another way are none of its business.
    sigset_t none;
    sigemptyset(&none);
    ::posix_spawnattr_setsigmask(&attributes, &none);
    ::posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSIGMASK);
    const int error = ::posix_spawn(&id_, program.c_str(), &actions, &attributes,
                                    pointers(arguments).data(), pointers(environment).data());
    ::posix_spawnattr_destroy(&attributes);
    ::posix_spawn_file_actions_destroy(&actions);
    if (error != 0)
        fail(error, program.string());
    process_ = foundation::FileDescriptor(static_cast<int>(::syscall(SYS_pidfd_open, id_, 0)));
    if (!process_) {
        // A process whose end nobody would notice is none to work with.
        const int failure = errno;
        kill();
        ::waitpid(id_, nullptr, 0);
        fail(failure, "pidfd_open");
    }
}

ExtensionProcess::~ExtensionProcess() {
    if (id_ > 0)
        end();
}

int ExtensionProcess::end() {
    socket_ = {};
    if (!endsWithin(patience))
        kill();
    int status = 0;
    ::waitpid(std::exchange(id_, 0), &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
}

void ExtensionProcess::kill() {
    wasKilled_ = true;
    ::kill(id_, SIGKILL);
}

bool ExtensionProcess::hasEnded() const {
    return endsWithin(0);
}

bool ExtensionProcess::endsWithin(int milliseconds) const {
    pollfd ended{.fd = process_.number(), .events = POLLIN, .revents = 0};
    int count = 0;
    do
        count = ::poll(&ended, 1, milliseconds);
    while (count < 0 && errno == EINTR);
    return count == 1;
}

}  // namespace widgethost

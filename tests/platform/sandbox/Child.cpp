#include "platform/sandbox/Child.hpp"

#include <grp.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <system_error>

namespace {

constexpr uid_t nobody = 65534;
constexpr int unexpected = 255;

bool become(User user) {
    return user == User::ofTests ||
           (::setgroups(0, nullptr) == 0 && ::setgid(nobody) == 0 && ::setuid(nobody) == 0);
}

int outcome(const std::function<int()>& action) {
    try {
        return action();
    } catch (const std::system_error& error) {
        return error.code().value();
    } catch (...) {
        return unexpected;
    }
}

}  // namespace

bool canBe(User user) {
    return user == User::ofTests || ::geteuid() == 0;
}

int outcomeInChild(const std::function<int()>& action, User user) {
    const pid_t child = ::fork();
    if (child < 0)
        throw std::system_error(errno, std::generic_category(), "fork");
    if (child == 0)
        ::_exit(become(user) ? outcome(action) : unexpected);
    int status = 0;
    ::waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : signalled + WTERMSIG(status);
}

#pragma once

#include "platform/foundation/files/FileDescriptor.hpp"
#include "support/Patience.hpp"

#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace support {

/// A program that runs beside the test, its output at hand line by line. Killed with its owner.
class ChildProcess {
  public:
    explicit ChildProcess(std::vector<std::string> arguments) {
        int ends[2];
        if (::pipe2(ends, O_CLOEXEC) != 0)
            throw std::runtime_error("no pipe");
        output_ = foundation::FileDescriptor(ends[0]);
        const foundation::FileDescriptor writing(ends[1]);
        std::vector<char*> words;
        for (std::string& argument : arguments)
            words.push_back(argument.data());
        words.push_back(nullptr);
        posix_spawn_file_actions_t actions;
        ::posix_spawn_file_actions_init(&actions);
        ::posix_spawn_file_actions_adddup2(&actions, writing.number(), STDOUT_FILENO);
        const int error = ::posix_spawnp(&id_, words[0], &actions, nullptr, words.data(), environ);
        ::posix_spawn_file_actions_destroy(&actions);
        if (error != 0)
            throw std::runtime_error("cannot run " + arguments[0]);
    }
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;
    ~ChildProcess() { kill(); }

    void signal(int number) { ::kill(id_, number); }

    /// Ends it at once and waits until it is gone.
    void kill() {
        if (id_ <= 0)
            return;
        signal(SIGKILL);
        wait();
    }

    /// Waits for its end. The exit status; 128 and more is a signal.
    int wait() {
        int status = 0;
        ::waitpid(id_, &status, 0);
        id_ = 0;
        return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
    }

    /// The next line of output, without its end; nothing when none comes in time.
    std::optional<std::string> line() {
        const auto deadline = std::chrono::steady_clock::now() + patience;
        std::size_t end;
        while ((end = read_.find('\n')) == std::string::npos) {
            const auto left = std::chrono::ceil<std::chrono::milliseconds>(
                deadline - std::chrono::steady_clock::now());
            pollfd ready{.fd = output_.number(), .events = POLLIN, .revents = 0};
            if (left.count() < 0 || ::poll(&ready, 1, static_cast<int>(left.count())) <= 0)
                return std::nullopt;
            char bytes[4096];
            const ssize_t count = ::read(output_.number(), bytes, sizeof bytes);
            if (count <= 0)
                return std::nullopt;
            read_.append(bytes, static_cast<std::size_t>(count));
        }
        std::string first = read_.substr(0, end);
        read_.erase(0, end + 1);
        return first;
    }

  private:
    pid_t id_ = 0;
    foundation::FileDescriptor output_;
    std::string read_;
};

}  // namespace support

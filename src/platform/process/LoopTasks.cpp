#include "platform/process/LoopTasks.hpp"

#include <sys/eventfd.h>

#include <cerrno>
#include <system_error>
#include <utility>

namespace process {

LoopTasks::LoopTasks() : event_(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)) {
    if (!event_)
        throw std::system_error(errno, std::generic_category(), "eventfd");
}

void LoopTasks::add(std::function<void()> task) {
    const std::lock_guard lock(mutex_);
    tasks_.push_back(std::move(task));
    ::eventfd_write(event_.number(), 1);
}

void LoopTasks::run() {
    std::vector<std::function<void()>> tasks;
    {
        const std::lock_guard lock(mutex_);
        eventfd_t count = 0;
        ::eventfd_read(event_.number(), &count);
        tasks.swap(tasks_);
    }
    for (const auto& task : tasks)
        task();
}

}  // namespace process

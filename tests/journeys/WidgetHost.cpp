#include "journeys/WidgetHost.hpp"

#include "journeys/Waiting.hpp"
#include "support/Program.hpp"

#include <filesystem>
#include <fstream>
#include <stdexcept>

namespace journeys {

namespace {

std::filesystem::path folderOf(pid_t process) {
    return "/proc/" + std::to_string(process);
}

}  // namespace

WidgetHost::WidgetHost(const std::string& arguments)
    : process_({"sh", "-c", "echo $$; exec " NURVA_DESKTOP " " + arguments + " 2>&1"}) {
    const auto line = process_.line();
    if (!line)
        throw std::runtime_error("no widget host");
    id_ = std::stoi(*line);
}

pid_t WidgetHost::extension() const {
    std::error_code gone;
    for (const auto& thread : std::filesystem::directory_iterator(folderOf(id_) / "task", gone)) {
        std::ifstream children(thread.path() / "children");
        for (pid_t child = 0; children >> child;)
            if (std::filesystem::read_symlink(folderOf(child) / "exe", gone) == NURVA_EXTENSION)
                return child;
    }
    return 0;
}

std::optional<int> WidgetHost::quit() {
    process_.signal(SIGTERM);
    return ended();
}

std::optional<int> WidgetHost::ended() {
    if (!soon([&] { return !isRunning(id_); }))
        return std::nullopt;
    return process_.wait();
}

bool isRunning(pid_t process) {
    const std::string status = support::contentsOf(folderOf(process) / "stat");
    const std::size_t name = status.rfind(") ");
    return name != std::string::npos && status[name + 2] != 'Z';
}

bool isThere(pid_t process) {
    return std::filesystem::exists(folderOf(process));
}

}  // namespace journeys

#include "journeys/Compositor.hpp"

#include "support/Program.hpp"

#include <nlohmann/json.hpp>
#include <unistd.h>

#include <cstdlib>
#include <sstream>
#include <stdexcept>

namespace journeys {

namespace {

void collect(const nlohmann::json& node, std::map<std::string, Area>& windows) {
    if (node.contains("pid") && node.at("name").is_string()) {
        const auto& rect = node.at("rect");
        windows[node.at("name")] = {rect.at("x"), rect.at("y"), rect.at("width"),
                                    rect.at("height")};
    }
    for (const char* kind : {"nodes", "floating_nodes"})
        for (const auto& child : node.at(kind))
            collect(child, windows);
}

}  // namespace

Compositor::Compositor() {
    // It tells where it is once it is there.
    const auto settings = folder_.write("config",
                                        "xwayland disable\n"
                                        "output HEADLESS-1 resolution 1280x800\n"
                                        "default_border none\n"
                                        "default_floating_border none\n"
                                        "exec echo $WAYLAND_DISPLAY $SWAYSOCK >&3\n");
    // It refuses to run as root, even where there is nobody else.
    const std::string program = ::getuid() == 0 ? "unshare --user --map-user=1000 sway" : "sway";
    process_ = std::make_unique<support::ChildProcess>(std::vector<std::string>{
        "sh", "-c",
        "unset DISPLAY SWAYSOCK; export WLR_BACKENDS=headless WLR_LIBINPUT_NO_DEVICES=1 "
        "WLR_RENDERER=pixman; exec " +
            program + " --config '" + settings.string() + "' 3>&1 >/dev/null 2>&1"});
    std::istringstream line(process_->line().value_or(""));
    std::string display;
    std::string socket;
    if (!(line >> display >> socket))
        throw std::runtime_error("no compositor");
    ::unsetenv("DISPLAY");
    ::setenv("WAYLAND_DISPLAY", display.c_str(), 1);
    ::setenv("SWAYSOCK", socket.c_str(), 1);
}

std::map<std::string, Area> Compositor::windows() const {
    std::map<std::string, Area> all;
    collect(nlohmann::json::parse(support::run("swaymsg --raw -t get_tree").output), all);
    return all;
}

void Compositor::raise(const std::string& title) const {
    support::run("swaymsg '[title=\"^" + title + "$\"] focus'");
}

Picture Compositor::picture() const {
    const auto file = folder_.path() / "screen.png";
    support::run("grim '" + file.string() + "'");
    return Picture::read(file);
}

}  // namespace journeys

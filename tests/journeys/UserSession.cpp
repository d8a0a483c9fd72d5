#include "journeys/UserSession.hpp"

#include "journeys/Waiting.hpp"
#include "platform/foundation/json/JSONDecoder.hpp"
#include "support/Program.hpp"

#include <stdexcept>
#include <vector>

namespace journeys {

void UserSession::startHostApplication(const std::string& scene) {
    hostApplication_ = std::make_unique<support::ChildProcess>(std::vector<std::string>{
        "sh", "-c", "exec " NURVA_PROGRAM " host --demo --scene " + scene + " 2>/dev/null"});
    if (!soon([] { return Container::hasState(); }))
        throw std::runtime_error("no snapshot");
}

std::optional<widgethost::Placement> UserSession::placement() const {
    const auto file = home.folder.path() / "config/nurva-widgets/placement.json";
    if (!std::filesystem::exists(file))
        return std::nullopt;
    return foundation::JSONDecoder().decode<widgethost::Placement>(support::contentsOf(file));
}

}  // namespace journeys

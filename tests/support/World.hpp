#pragma once

#include "platform/foundation/Environment.hpp"
#include "support/ManualClock.hpp"
#include "support/MemoryFileManager.hpp"
#include "support/RecordedNotifications.hpp"

#include <string>
#include <utility>

namespace support {

/// The moment at which the clocks of the tests stand.
inline constexpr foundation::Date noon{804686400};

/// A world of its own: a clock and containers that the test sets, and the texts of a bundle.
struct World {
    explicit World(foundation::Bundle mainBundle = spanishBundle(), std::string locale = "es_ES")
        : environment{clock, files, notifications, std::move(mainBundle),
                      foundation::Locale{std::move(locale)}} {}

    World(const World&) = delete;
    World& operator=(const World&) = delete;

    /// The extension's bundle as a user of these languages sees it.
    static foundation::Bundle bundleIn(std::vector<std::string> languages) {
        return foundation::Bundle::localized(NURVA_RESOURCES_FOLDER "/NurvaWidgets.appex",
                                             std::move(languages));
    }
    static foundation::Bundle spanishBundle() { return bundleIn({"es"}); }

    ManualClock clock{noon};
    MemoryFileManager files;
    RecordedNotifications notifications;
    foundation::Environment environment;
};

}  // namespace support

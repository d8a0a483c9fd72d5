#pragma once

#include "platform/foundation/Clock.hpp"
#include "platform/foundation/bundle/Bundle.hpp"
#include "platform/foundation/files/FileManager.hpp"
#include "platform/foundation/localization/Locale.hpp"
#include "platform/foundation/notifications/DistributedNotificationCenter.hpp"

namespace foundation {

/// What a program sees of the outside world, passed to whatever depends on it. The clock, the
/// file manager and the notification centre must outlive it.
struct Environment {
    const Clock& clock;
    const FileManager& fileManager;
    const DistributedNotificationCenter& notifications;
    Bundle mainBundle;
    Locale locale;
};

/// The world of the running process, read from its variables at the moment of the call.
Environment processEnvironment();

}  // namespace foundation

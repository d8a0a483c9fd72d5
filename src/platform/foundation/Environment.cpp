#include "platform/foundation/Environment.hpp"

#include "platform/foundation/SystemClock.hpp"
#include "platform/foundation/files/DefaultFileManager.hpp"
#include "platform/foundation/notifications/SessionBusNotificationCenter.hpp"

namespace foundation {

Environment processEnvironment() {
    static const SystemClock clock;
    static const DefaultFileManager fileManager;
    static const SessionBusNotificationCenter notifications;
    return {clock, fileManager, notifications, Bundle::main(), Locale::current()};
}

}  // namespace foundation

#include "platform/foundation/Environment.hpp"

#include "platform/foundation/DefaultFileManager.hpp"
#include "platform/foundation/SessionBusNotificationCenter.hpp"
#include "platform/foundation/SystemClock.hpp"

namespace foundation {

Environment processEnvironment() {
    static const SystemClock clock;
    static const DefaultFileManager fileManager;
    static const SessionBusNotificationCenter notifications;
    return {clock, fileManager, notifications, Bundle::main(), Locale::current()};
}

}  // namespace foundation

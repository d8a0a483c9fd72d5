#include "platform/foundation/Environment.hpp"

#include "platform/foundation/DefaultFileManager.hpp"
#include "platform/foundation/SystemClock.hpp"

namespace foundation {

Environment processEnvironment() {
    static const SystemClock clock;
    static const DefaultFileManager fileManager;
    return {clock, fileManager, Bundle::main(), Locale::current()};
}

}  // namespace foundation

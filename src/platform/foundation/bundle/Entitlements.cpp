#include "platform/foundation/bundle/Entitlements.hpp"

#include "platform/foundation/files/FileError.hpp"
#include "platform/foundation/files/ReadFile.hpp"
#include "platform/foundation/plist/PropertyList.hpp"

namespace foundation {

Entitlements Entitlements::of(const Bundle& bundle) try {
    const auto list = PropertyList::parse(readFile(bundle.path() / "Entitlements.plist"));
    if (!list)
        return {};
    return {.applicationGroups = list->strings("com.apple.security.application-groups"),
            .notifications = list->strings("org.nurva.security.distributed-notifications")};
} catch (const FileError&) {
    return {};
}

}  // namespace foundation

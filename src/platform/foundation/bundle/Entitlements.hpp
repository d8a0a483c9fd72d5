#pragma once

#include "platform/foundation/bundle/Bundle.hpp"

#include <string>
#include <vector>

namespace foundation {

/// What an extension is let do beyond drawing, as the `Entitlements.plist` of its bundle lists it.
struct Entitlements {
    std::vector<std::string> applicationGroups;  // whose containers it may use
    std::vector<std::string> notifications;      // that it may send
    bool operator==(const Entitlements&) const = default;

    /// Nothing of what is not listed. Never fails.
    static Entitlements of(const Bundle& bundle);
};

}  // namespace foundation

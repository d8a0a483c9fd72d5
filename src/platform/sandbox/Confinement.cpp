#include "platform/sandbox/Confinement.hpp"

#include "platform/sandbox/CallFilter.hpp"
#include "platform/sandbox/Landlock.hpp"
#include "platform/sandbox/LandlockRights.hpp"
#include "platform/sandbox/ProcessLimits.hpp"

namespace sandbox {

bool Confinement::isComplete() const {
    return callsAreFiltered && handledRights(landlockABI) == handledRights(newestLandlockABI);
}

Confinement confine(const Permissions& permissions) {
    const Confinement granted = available();
    limitProcess(permissions.memory);
    if (granted.landlockABI > 0)
        restrictAccess(permissions, granted.landlockABI);
    // Last, for it refuses what the other steps need.
    if (granted.callsAreFiltered)
        filterCalls();
    return granted;
}

Confinement available() {
    return {.landlockABI = landlockABIOfKernel(), .callsAreFiltered = kernelFiltersCalls()};
}

}  // namespace sandbox

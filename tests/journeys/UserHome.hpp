#pragma once

#include "support/TemporaryFolder.hpp"

namespace journeys {

/// The home of a user who has never logged in before, which is that of the processes that start
/// from now on.
struct UserHome {
    UserHome();

    support::TemporaryFolder folder;
};

}  // namespace journeys

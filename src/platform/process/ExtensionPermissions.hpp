#pragma once

#include "platform/foundation/EnvironmentVariables.hpp"
#include "platform/sandbox/Permissions.hpp"

namespace process {

/// What an extension's process may reach: it reads fonts and its bundle, and uses the containers
/// that are there of the groups in its entitlements.
sandbox::Permissions permissionsOfExtension(const foundation::EnvironmentVariables& variables =
                                                foundation::EnvironmentVariables::ofProcess());

}  // namespace process

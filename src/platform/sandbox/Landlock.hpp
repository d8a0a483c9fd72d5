#pragma once

#include "platform/sandbox/Permissions.hpp"

namespace sandbox {

/// The version of Landlock that the running kernel has; 0 where it has none or it is switched off.
int landlockABIOfKernel();

/// Leaves the calling thread no access to files but the permitted one, as far as this version goes,
/// and none to ports, abstract sockets and signals of others. Requires limitProcess, and a version
/// from 1 to the kernel's. Throws std::system_error.
void restrictAccess(const Permissions& permissions, int abi);

}  // namespace sandbox

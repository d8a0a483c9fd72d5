#pragma once

namespace sandbox {

/// Whether the running kernel filters calls, and lets this process ask for it.
bool kernelFiltersCalls();

/// Leaves the calling thread the calls that a confined process needs. The others fail: with EPERM
/// where they are dangerous or of another architecture, with ENOSYS where nobody has heard of them.
/// Requires limitProcess. Throws std::system_error.
void filterCalls();

}  // namespace sandbox

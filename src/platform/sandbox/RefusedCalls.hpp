#pragma once

#include <span>

namespace sandbox {

/// The calls, by number, that a confined process has no business making. They answer EPERM, as to
/// one without the right, where calls that nobody has heard of answer ENOSYS, on which libraries
/// fall back to older ones.
std::span<const int> refusedCalls();

}  // namespace sandbox

#pragma once

#include <span>

namespace sandbox {

/// The calls, by number, that a confined process makes with any arguments. None of them reaches
/// further than the files that are permitted and the descriptors that are open.
std::span<const int> allowedCalls();

}  // namespace sandbox

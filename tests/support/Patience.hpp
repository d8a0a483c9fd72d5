#pragma once

#include <chrono>

namespace support {

/// How long a test waits for what takes a moment: however busy the machine is, what has not come
/// by then does not come.
inline constexpr std::chrono::seconds patience{60};

}  // namespace support

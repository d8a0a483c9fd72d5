#pragma once

#include <cstddef>

namespace sandbox {

/// No program that the process runs gains rights by it, its memory is neither dumped nor open to
/// other processes of the user, and it takes no more than so many bytes. Throws std::system_error.
void limitProcess(std::size_t memory);

}  // namespace sandbox

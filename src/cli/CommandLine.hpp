#pragma once

namespace cli {

/// Runs `nurva` with the arguments of a program. Answers its exit status: 0 done, 1 could not, 2
/// wrong use. What went wrong stands on standard error.
int run(int argumentCount, const char* const* arguments);

}  // namespace cli

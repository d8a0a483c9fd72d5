#pragma once

#include <seccomp.h>

#include <vector>

namespace sandbox {

/// A call that is allowed where all of these comparisons of its arguments hold.
struct ConditionalCall {
    int number;
    std::vector<scmp_arg_cmp> conditions;
};

/// The calls that a confined process makes with some arguments only. Of several entries for one
/// call any may hold. Requires that the calling process is the one that is to be confined.
std::vector<ConditionalCall> conditionalCalls();

}  // namespace sandbox

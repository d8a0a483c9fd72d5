#include "platform/sandbox/ProcessLimits.hpp"

#include <sys/prctl.h>
#include <sys/resource.h>

#include <algorithm>
#include <cerrno>
#include <system_error>

namespace sandbox {
namespace {

void setOption(int option, unsigned long value) {
    if (::prctl(option, value, 0UL, 0UL, 0UL) != 0)
        throw std::system_error(errno, std::generic_category(), "prctl");
}

/// Lowers a limit for ever; one that is lower already stays.
void lowerLimit(__rlimit_resource resource, rlim_t bound) {
    rlimit limit{};
    if (::getrlimit(resource, &limit) != 0)
        throw std::system_error(errno, std::generic_category(), "getrlimit");
    limit.rlim_max = std::min(limit.rlim_max, bound);
    limit.rlim_cur = std::min(limit.rlim_cur, bound);
    if (::setrlimit(resource, &limit) != 0)
        throw std::system_error(errno, std::generic_category(), "setrlimit");
}

}  // namespace

void limitProcess(std::size_t memory) {
    setOption(PR_SET_NO_NEW_PRIVS, 1);
    setOption(PR_SET_DUMPABLE, 0);
    lowerLimit(RLIMIT_CORE, 0);
    lowerLimit(RLIMIT_DATA, memory);
}

}  // namespace sandbox

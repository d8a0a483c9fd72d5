#include "platform/sandbox/Landlock.hpp"

#include "platform/foundation/files/FileDescriptor.hpp"
#include "platform/sandbox/LandlockRights.hpp"

#include <fcntl.h>
#include <linux/landlock.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <system_error>

namespace sandbox {
namespace {

[[noreturn]] void fail(const char* call) {
    throw std::system_error(errno, std::generic_category(), call);
}

void permit(const foundation::FileDescriptor& rules,
            const std::filesystem::path& path,
            std::uint64_t rights) {
    const foundation::FileDescriptor file(::open(path.c_str(), O_PATH | O_CLOEXEC));
    if (!file)
        return;
    struct stat status {};
    if (::fstat(file.number(), &status) != 0)
        fail("fstat");
    landlock_path_beneath_attr rule{};
    rule.allowed_access = S_ISDIR(status.st_mode) ? rights : rights & rightsOfFile;
    rule.parent_fd = file.number();
    if (::syscall(SYS_landlock_add_rule, rules.number(), LANDLOCK_RULE_PATH_BENEATH, &rule, 0) != 0)
        fail("landlock_add_rule");
}

}  // namespace

int landlockABIOfKernel() {
    const long abi =
        ::syscall(SYS_landlock_create_ruleset, nullptr, 0, LANDLOCK_CREATE_RULESET_VERSION);
    return static_cast<int>(std::max(abi, 0L));
}

void restrictAccess(const Permissions& permissions, int abi) {
    const LandlockRights handled = handledRights(abi);
    // A kernel that knows only the first members takes the others as long as they are zero.
    const foundation::FileDescriptor rules(
        static_cast<int>(::syscall(SYS_landlock_create_ruleset, &handled, sizeof handled, 0)));
    if (!rules)
        fail("landlock_create_ruleset");
    for (const auto& path : permissions.readable)
        permit(rules, path, readingRights & handled.files);
    for (const auto& path : permissions.writable)
        permit(rules, path, writingRights & handled.files);
    if (::syscall(SYS_landlock_restrict_self, rules.number(), 0) != 0)
        fail("landlock_restrict_self");
}

}  // namespace sandbox

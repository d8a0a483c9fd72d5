#include "platform/sandbox/CallFilter.hpp"

#include "platform/sandbox/AllowedCalls.hpp"
#include "platform/sandbox/ConditionalCalls.hpp"
#include "platform/sandbox/RefusedCalls.hpp"

#include <linux/seccomp.h>
#include <seccomp.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>
#include <cstdint>
#include <memory>
#include <system_error>

namespace sandbox {
namespace {

constexpr std::uint32_t refusal = SCMP_ACT_ERRNO(EPERM);

/// A filter that is being made. What it has no rule for gets the usual answer.
class Filter {
  public:
    explicit Filter(std::uint32_t usualAnswer) : context_(::seccomp_init(usualAnswer)) {
        if (!context_)
            throw std::system_error(ENOMEM, std::generic_category(), "seccomp_init");
        check(::seccomp_attr_set(context_.get(), SCMP_FLTATR_ACT_BADARCH, refusal));
        check(::seccomp_attr_set(context_.get(), SCMP_FLTATR_CTL_NNP, 0));
    }

    void answer(int call, std::uint32_t action, const std::vector<scmp_arg_cmp>& conditions = {}) {
        check(::seccomp_rule_add_array(context_.get(), action, call,
                                       static_cast<unsigned>(conditions.size()),
                                       conditions.data()));
    }

    void load() const { check(::seccomp_load(context_.get())); }

  private:
    struct Release {
        void operator()(scmp_filter_ctx context) const { ::seccomp_release(context); }
    };

    static void check(int result) {
        if (result < 0)
            throw std::system_error(-result, std::generic_category(), "seccomp");
    }

    std::unique_ptr<void, Release> context_;
};

/// Which calls there are.
Filter filterOfNumbers() {
    Filter filter(SCMP_ACT_ERRNO(ENOSYS));
    for (const int call : allowedCalls())
        filter.answer(call, SCMP_ACT_ALLOW);
    for (const ConditionalCall& call : conditionalCalls())
        filter.answer(call.number, SCMP_ACT_ALLOW);
    for (const int call : refusedCalls())
        filter.answer(call, refusal);
    return filter;
}

/// Which arguments they take.
Filter filterOfArguments() {
    Filter filter(refusal);
    for (const int call : allowedCalls())
        filter.answer(call, SCMP_ACT_ALLOW);
    for (const ConditionalCall& call : conditionalCalls())
        filter.answer(call.number, SCMP_ACT_ALLOW, call.conditions);
    // For the other filter to follow, which refuses it.
    filter.answer(SCMP_SYS(seccomp), SCMP_ACT_ALLOW);
    return filter;
}

}  // namespace

bool kernelFiltersCalls() {
    const std::uint32_t action = SECCOMP_RET_ERRNO;
    return ::syscall(SYS_seccomp, SECCOMP_GET_ACTION_AVAIL, 0, &action) == 0;
}

void filterCalls() {
    // One filter cannot tell wrong arguments from unknown calls. Of two, a call passes that both
    // let pass, and the one that came later says why another does not.
    const Filter arguments = filterOfArguments();
    const Filter numbers = filterOfNumbers();
    arguments.load();
    numbers.load();
}

}  // namespace sandbox

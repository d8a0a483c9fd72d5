#include "platform/sandbox/AllowedCalls.hpp"
#include "platform/sandbox/CallFilter.hpp"
#include "platform/sandbox/Child.hpp"
#include "platform/sandbox/ConditionalCalls.hpp"
#include "platform/sandbox/Permissions.hpp"
#include "platform/sandbox/ProcessLimits.hpp"
#include "platform/sandbox/RefusedCalls.hpp"

#include <gtest/gtest.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <set>

namespace sandbox {
namespace {

constexpr int endOfCalls = 1000;

// With these two the kernel itself comes back from probes that trace the process. It filters them
// never, and kills whoever makes them elsewhere.
constexpr int returnFromProbe = 335;
constexpr int enterProbe = 336;

std::set<int> conditionalNumbers() {
    std::set<int> numbers;
    for (const ConditionalCall& call : conditionalCalls())
        numbers.insert(call.number);
    return numbers;
}

/// Makes calls with nonsense for arguments where they are filtered. The first that answers
/// otherwise than expected, as an outcome of a child; 0 where none does.
int firstThatAnswersOtherwise(int error, const std::set<int>& numbers) {
    limitProcess(Permissions::unlimited);
    filterCalls();
    for (const int number : numbers)
        if (::syscall(number, -1L, -1L, -1L, -1L, -1L, -1L) != -1 || errno != error) {
            std::fprintf(stderr, "call %d: %s\n", number, std::strerror(errno));
            return 1;
        }
    return 0;
}

TEST(CallFilter, KnowsEveryCallOnce) {
    std::multiset<int> numbers(allowedCalls().begin(), allowedCalls().end());
    numbers.insert(refusedCalls().begin(), refusedCalls().end());
    const std::set<int> conditional = conditionalNumbers();
    numbers.insert(conditional.begin(), conditional.end());
    for (const int number : numbers)
        EXPECT_EQ(numbers.count(number), 1u) << number;
}

TEST(CallFilter, RefusesWhatIsDangerous) {
    const std::set<int> numbers(refusedCalls().begin(), refusedCalls().end());
    EXPECT_EQ(outcomeInChild([&] { return firstThatAnswersOtherwise(EPERM, numbers); }), 0);
}

TEST(CallFilter, DoesNotKnowAnythingElse) {
    std::set<int> numbers;
    for (int number = 0; number < endOfCalls; ++number)
        if (number != returnFromProbe && number != enterProbe)
            numbers.insert(number);
    for (const int number : allowedCalls())
        numbers.erase(number);
    for (const int number : refusedCalls())
        numbers.erase(number);
    for (const int number : conditionalNumbers())
        numbers.erase(number);
    EXPECT_EQ(outcomeInChild([&] { return firstThatAnswersOtherwise(ENOSYS, numbers); }), 0);
}

TEST(CallFilter, RefusesWrongArguments) {
    EXPECT_EQ(outcomeInChild([] { return firstThatAnswersOtherwise(EPERM, conditionalNumbers()); }),
              0);
}

}  // namespace
}  // namespace sandbox

#include "platform/sandbox/AllowedCalls.hpp"
#include "platform/sandbox/ConditionalCalls.hpp"
#include "platform/sandbox/RefusedCalls.hpp"
#include "support/Program.hpp"

#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdlib>
#include <set>
#include <sstream>
#include <string>

namespace sandbox {
namespace {

std::string nameOf(int call) {
    char* const name = ::seccomp_syscall_resolve_num_arch(SCMP_ARCH_NATIVE, call);
    std::string copy = name ? name : std::to_string(call);
    std::free(name);
    return copy;
}

/// What a condition wants of an argument: "2&0x200=0".
std::string textOf(const scmp_arg_cmp& condition) {
    std::ostringstream text;
    text << condition.arg << std::hex << std::showbase;
    if (condition.op == SCMP_CMP_MASKED_EQ)
        text << "&" << condition.datum_a << "=" << condition.datum_b;
    else if (condition.op == SCMP_CMP_EQ)
        text << "=" << condition.datum_a;
    else
        text << " otherwise";
    return text.str();
}

/// The same, with "self" for the number of this process.
std::string textOf(const ConditionalCall& call) {
    std::string text = "allow " + nameOf(call.number) + " if";
    for (const scmp_arg_cmp& condition : call.conditions) {
        const bool isSelf = call.number == SCMP_SYS(tgkill) && condition.op == SCMP_CMP_EQ &&
                            condition.datum_a == static_cast<scmp_datum_t>(::getpid());
        text += isSelf ? " " + std::to_string(condition.arg) + "=self" : " " + textOf(condition);
    }
    return text;
}

/// One line for each rule, in the order of the alphabet.
std::string allRules() {
    std::set<std::string> lines;
    for (const int call : allowedCalls())
        lines.insert("allow " + nameOf(call));
    for (const int call : refusedCalls())
        lines.insert("refuse " + nameOf(call));
    for (const ConditionalCall& call : conditionalCalls())
        lines.insert(textOf(call));
    std::string text;
    for (const std::string& line : lines)
        text += line + "\n";
    return text;
}

// Nobody lets an extension do more, or less, without having said so twice.
TEST(CallLists, AreAsWrittenDown) {
    EXPECT_EQ(allRules(), support::contentsOf(NURVA_TESTS_FOLDER "/platform/sandbox/calls.txt"));
}

}  // namespace
}  // namespace sandbox

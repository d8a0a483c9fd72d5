#include "platform/foundation/EnvironmentVariables.hpp"

#include <gtest/gtest.h>

#include <cstdlib>

namespace foundation {
namespace {

TEST(EnvironmentVariables, AnEmptyVariableCountsAsNotSet) {
    const EnvironmentVariables variables({{"A", ""}, {"B", "b"}});
    EXPECT_EQ(variables.value("A"), std::nullopt);
    EXPECT_EQ(variables.value("B"), "b");
    EXPECT_EQ(variables.value("C"), std::nullopt);
}

TEST(EnvironmentVariables, FirstSetFollowsTheGivenOrder) {
    const EnvironmentVariables variables({{"A", ""}, {"B", "b"}, {"C", "c"}});
    EXPECT_EQ(variables.firstSet({"A", "B", "C"}), "b");
    EXPECT_EQ(variables.firstSet({"C", "B"}), "c");
    EXPECT_EQ(variables.firstSet({"A", "X"}), std::nullopt);
}

TEST(EnvironmentVariables, OfProcessHoldsWhatTheProcessWasGiven) {
    const char* path = std::getenv("PATH");
    ASSERT_NE(path, nullptr);
    EXPECT_EQ(EnvironmentVariables::ofProcess().value("PATH"), path);
}

}  // namespace
}  // namespace foundation

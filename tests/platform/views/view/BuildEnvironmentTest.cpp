#include "platform/views/view/BuildEnvironment.hpp"
#include "support/World.hpp"

#include <gtest/gtest.h>

#include <thread>

namespace views {
namespace {

using support::World;

TEST(BuildScope, IsWhatViewsAreBuiltAgainst) {
    const World world;
    const BuildScope scope(world.environment);
    EXPECT_EQ(&buildEnvironment(), &world.environment);
}

TEST(BuildScope, NestsAndGivesTheOuterOneBack) {
    const World outer;
    const World inner;
    const BuildScope outerScope(outer.environment);
    {
        const BuildScope innerScope(inner.environment);
        EXPECT_EQ(&buildEnvironment(), &inner.environment);
        {
            const BuildScope again(outer.environment);
            EXPECT_EQ(&buildEnvironment(), &outer.environment);
        }
        EXPECT_EQ(&buildEnvironment(), &inner.environment);
    }
    EXPECT_EQ(&buildEnvironment(), &outer.environment);
}

TEST(BuildScope, CountsForItsThreadOnly) {
    const World here;
    const World there;
    const BuildScope scope(here.environment);
    const foundation::Environment* seen = nullptr;
    std::thread([&] {
        const BuildScope other(there.environment);
        seen = &buildEnvironment();
    }).join();
    EXPECT_EQ(seen, &there.environment);
    EXPECT_EQ(&buildEnvironment(), &here.environment);
}

TEST(BuildScopeDeathTest, MissingStopsTheProcess) {
    EXPECT_DEATH(buildEnvironment(), "outside a build scope");
}

}  // namespace
}  // namespace views

#include "platform/sandbox/Child.hpp"
#include "platform/sandbox/Confinement.hpp"
#include "platform/sandbox/Probe.hpp"

#include <gtest/gtest.h>

namespace sandbox {
namespace {

std::vector<Probe> allProbes() {
    std::vector<Probe> all;
    for (const auto& probes :
         {socketProbes(), processProbes(), identityProbes(), mountProbes(), kernelProbes(),
          memoryProbes(), readingProbes(), writingProbes(), metadataProbes(), architectureProbes()})
        all.insert(all.end(), probes.begin(), probes.end());
    return all;
}

class Refusal : public testing::TestWithParam<Probe> {
  protected:
    int confined(User user) const {
        return outcomeInChild(
            [&] {
                confine(grounds_.permissions());
                return GetParam().attempt(grounds_);
            },
            user);
    }

    int unconfined() const {
        return outcomeInChild([&] { return GetParam().attempt(grounds_); });
    }

  private:
    Grounds grounds_;
};

TEST_P(Refusal, IsExact) {
    EXPECT_EQ(confined(User::ofTests), GetParam().refusal);
}

TEST_P(Refusal, IsTheSameForAnOrdinaryUser) {
    if (!canBe(User::ordinary))
        GTEST_SKIP() << "The tests run as an ordinary user.";
    EXPECT_EQ(confined(User::ordinary), GetParam().refusal);
}

TEST_P(Refusal, ComesFromTheSandbox) {
    if (!canBe(User::ordinary))
        GTEST_SKIP() << "Only root has so many rights that nobody else refuses.";
    if (GetParam().outside == Outside::works)
        EXPECT_EQ(unconfined(), 0);
    else
        EXPECT_NE(unconfined(), GetParam().refusal);
}

INSTANTIATE_TEST_SUITE_P(Probes, Refusal, testing::ValuesIn(allProbes()), [](const auto& probe) {
    return probe.param.name;
});

}  // namespace
}  // namespace sandbox

#include "platform/sandbox/LandlockRights.hpp"

#include <gtest/gtest.h>

namespace sandbox {
namespace {

TEST(LandlockRights, AreExactInEveryVersion) {
    const LandlockRights expected[] = {
        {.files = 0, .ports = 0, .scopes = 0},      {.files = 0x1fff, .ports = 0, .scopes = 0},
        {.files = 0x3fff, .ports = 0, .scopes = 0}, {.files = 0x7fff, .ports = 0, .scopes = 0},
        {.files = 0x7fff, .ports = 3, .scopes = 0}, {.files = 0xffff, .ports = 3, .scopes = 0},
        {.files = 0xffff, .ports = 3, .scopes = 3}, {.files = 0xffff, .ports = 3, .scopes = 3},
    };
    for (int abi = 0; abi < 8; ++abi)
        EXPECT_EQ(handledRights(abi), expected[abi]) << "version " << abi;
}

TEST(LandlockRights, NeverLetAFileBeExecutedOrALinkOrADeviceBeMade) {
    EXPECT_EQ(readingRights, 0b0000'0000'0000'1100u);
    EXPECT_EQ(writingRights, 0b0110'0001'1011'1110u);
}

TEST(LandlockRights, OfAFileAreThoseThatNeedNoFolder) {
    EXPECT_EQ(rightsOfFile, 0b1100'0000'0000'0111u);
}

}  // namespace
}  // namespace sandbox

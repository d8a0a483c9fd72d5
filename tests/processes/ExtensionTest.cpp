#include "support/Program.hpp"

#include <gtest/gtest.h>

namespace {

TEST(Extension, SaysWhoStartsItWhenAPersonDoes) {
    const auto outcome = support::run(NURVA_EXTENSION " 3<&-");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_NE(outcome.errors.find("nurva desktop"), std::string::npos);
}

TEST(Extension, LinksNeitherAToolkitNorADisplay) {
    const auto outcome = support::run("ldd " NURVA_EXTENSION);
    ASSERT_EQ(outcome.status, 0);
    EXPECT_NE(outcome.output.find("libcairo"), std::string::npos);
    for (const char* library : {"libgtk", "libgdk", "libwayland"})
        EXPECT_EQ(outcome.output.find(library), std::string::npos) << library;
}

}  // namespace

#include "platform/foundation/bundle/Entitlements.hpp"
#include "support/TemporaryFolder.hpp"

#include <gtest/gtest.h>

#include <string>

namespace foundation {
namespace {

/// What a bundle lets do whose list holds this in its dictionary.
Entitlements entitlements(const std::string& members) {
    const support::TemporaryFolder folder;
    folder.write("Entitlements.plist",
                 "<plist version=\"1.0\"><dict>" + members + "</dict></plist>");
    return Entitlements::of(*Bundle::open(folder.path()));
}

TEST(Entitlements, AreTheGroupsAndNotificationsThatAreListed) {
    EXPECT_EQ(
        entitlements(R"(
        <key>com.apple.security.app-sandbox</key><true/>
        <key>com.apple.security.application-groups</key>
        <array><string>group.a</string><string>group.b</string></array>
        <key>org.nurva.security.distributed-notifications</key>
        <array><string>a.b.c</string></array>)"),
        (Entitlements{.applicationGroups = {"group.a", "group.b"}, .notifications = {"a.b.c"}}));
}

TEST(Entitlements, AreNoneThatAreNotListed) {
    for (const char* members : {
             "",
             "<key>com.apple.security.application-groups</key><string>group.a</string>",
             "<key>com.apple.security.application-groups</key><array><true/></array>",
             "<key>org.nurva.security.distributed-notifications</key><dict/>",
             "<key>application-groups</key><array><string>group.a</string></array>",
         })
        EXPECT_EQ(entitlements(members), Entitlements{}) << members;
}

TEST(Entitlements, AreNoneWithoutAList) {
    const support::TemporaryFolder folder;
    const Bundle bundle = *Bundle::open(folder.path());
    EXPECT_EQ(Entitlements::of(bundle), Entitlements{});
    folder.write("Entitlements.plist", "no list");
    EXPECT_EQ(Entitlements::of(bundle), Entitlements{});
}

}  // namespace
}  // namespace foundation

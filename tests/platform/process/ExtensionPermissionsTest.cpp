#include "platform/canvas/FontFolders.hpp"
#include "platform/process/ExtensionPermissions.hpp"
#include "support/TemporaryFolder.hpp"

#include <gtest/gtest.h>

#include <filesystem>
#include <vector>

namespace process {
namespace {

TEST(ExtensionPermissions, AreFontsTheBundleAndTheContainersOfItsGroups) {
    const support::TemporaryFolder home;
    const auto bundle = home.path() / "Some.appex";
    home.write("Some.appex/Entitlements.plist",
               "<plist version=\"1.0\"><dict><key>com.apple.security.application-groups</key>"
               "<array><string>group.own</string><string>group.missing</string></array>"
               "</dict></plist>");
    const auto containers = home.path() / "group-containers";
    std::filesystem::create_directories(containers / "group.own");
    std::filesystem::create_directories(containers / "group.other");
    const foundation::EnvironmentVariables variables({{"HOME", home.path().string()},
                                                      {"XDG_DATA_HOME", home.path().string()},
                                                      {"NURVA_BUNDLE", bundle.string()}});
    const sandbox::Permissions permissions = permissionsOfExtension(variables);
    auto readable = canvas::fontFolders(variables);
    readable.push_back(bundle);
    EXPECT_EQ(permissions.readable, readable);
    EXPECT_EQ(permissions.writable, std::vector{containers / "group.own"});
    EXPECT_EQ(permissions.memory,
              NURVA_SANITIZED ? sandbox::Permissions::unlimited : std::size_t{256} << 20);
}

}  // namespace
}  // namespace process

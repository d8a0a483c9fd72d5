#include "platform/canvas/FontFolders.hpp"

#include <gtest/gtest.h>

#include <filesystem>
#include <map>
#include <set>
#include <string>

namespace canvas {
namespace {

using Folders = std::set<std::filesystem::path>;

const Folders ofSystem{
    "/usr/share/fonts",      "/usr/local/share/fonts",    "/etc/fonts",
    "/usr/share/fontconfig", "/usr/share/xml/fontconfig", "/var/cache/fontconfig",
    "/usr/share/libthai"};

/// The folders beside those of the system.
Folders ofUser(std::map<std::string, std::string, std::less<>> variables) {
    const auto all = fontFolders(foundation::EnvironmentVariables(std::move(variables)));
    Folders folders(all.begin(), all.end());
    for (const auto& folder : ofSystem)
        EXPECT_EQ(folders.erase(folder), 1u) << folder;
    return folders;
}

TEST(FontFolders, AreThoseOfTheSystemForNobody) {
    EXPECT_EQ(ofUser({}), Folders{});
}

TEST(FontFolders, LieInTheUsersHome) {
    EXPECT_EQ(ofUser({{"HOME", "/h"}}),
              (Folders{"/h/.local/share/fonts", "/h/.config/fontconfig", "/h/.cache/fontconfig",
                       "/h/.fonts", "/h/.fontconfig"}));
}

TEST(FontFolders, LieWhereTheUsersFilesOfTheirKindDo) {
    EXPECT_EQ(
        ofUser({{"HOME", "/h"},
                {"XDG_DATA_HOME", "/d"},
                {"XDG_CONFIG_HOME", "/c"},
                {"XDG_CACHE_HOME", "/k"}}),
        (Folders{"/d/fonts", "/c/fontconfig", "/k/fontconfig", "/h/.fonts", "/h/.fontconfig"}));
}

}  // namespace
}  // namespace canvas

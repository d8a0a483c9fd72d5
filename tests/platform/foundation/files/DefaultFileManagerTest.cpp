#include "platform/foundation/files/DefaultFileManager.hpp"
#include "platform/foundation/files/FileError.hpp"
#include "support/MemoryFileManager.hpp"
#include "support/TemporaryFolder.hpp"

#include <gtest/gtest.h>

namespace foundation {
namespace {

DefaultFileManager managerWith(std::map<std::string, std::string, std::less<>> variables) {
    return DefaultFileManager(EnvironmentVariables(std::move(variables)));
}

TEST(DefaultFileManager, AContainerIsAFolderOfTheUsersData) {
    const support::TemporaryFolder data;
    const auto container = data.path() / "group-containers" / "group.a";
    const auto manager = managerWith({{"XDG_DATA_HOME", data.path()}, {"HOME", "/nowhere"}});
    EXPECT_EQ(manager.containerURL("group.a"), std::nullopt);
    std::filesystem::create_directories(container);
    EXPECT_EQ(manager.containerURL("group.a"), container);
    EXPECT_EQ(manager.containerURL("group.b"), std::nullopt);
}

TEST(DefaultFileManager, TheUsersDataLiesInTheHomeFolderUnlessNamedByAnAbsolutePath) {
    const support::TemporaryFolder home;
    const auto container = home.path() / ".local/share/group-containers/group.a";
    std::filesystem::create_directories(container);
    for (const char* ignored : {"", "relative/data", "."}) {
        const auto manager = managerWith({{"XDG_DATA_HOME", ignored}, {"HOME", home.path()}});
        EXPECT_EQ(manager.containerURL("group.a"), container) << ignored;
    }
    EXPECT_EQ(managerWith({{"HOME", home.path()}}).containerURL("group.a"), container);
}

TEST(DefaultFileManager, WithoutAnyFolderOfTheUserNoGroupHasAContainer) {
    EXPECT_EQ(managerWith({}).containerURL("group.a"), std::nullopt);
    EXPECT_EQ(managerWith({{"HOME", "relative"}}).containerURL("group.a"), std::nullopt);
}

TEST(DefaultFileManager, AnIdentifierNeverLeavesTheFolderOfContainers) {
    const support::TemporaryFolder data;
    std::filesystem::create_directories(data.path() / "group-containers" / "a" / "b");
    const auto manager = managerWith({{"XDG_DATA_HOME", data.path()}});
    ASSERT_TRUE(manager.containerURL("a").has_value());
    using namespace std::string_view_literals;
    for (const std::string_view identifier :
         {""sv, "."sv, ".."sv, "a/b"sv, "a/"sv, "/a"sv, "../group-containers/a"sv, "/"sv, "a\0"sv,
          "a\0b"sv}) {
        EXPECT_FALSE(DefaultFileManager::namesContainer(identifier))
            << testing::PrintToString(identifier);
        EXPECT_EQ(manager.containerURL(identifier), std::nullopt)
            << testing::PrintToString(identifier);
    }
    EXPECT_TRUE(DefaultFileManager::namesContainer("a"));
    EXPECT_EQ(manager.containerURL(std::string(5000, 'a')), std::nullopt);
}

TEST(DefaultFileManager, AFileInPlaceOfTheFolderIsNoContainer) {
    const support::TemporaryFolder data;
    data.write("group-containers/group.a", "");
    EXPECT_EQ(managerWith({{"XDG_DATA_HOME", data.path()}}).containerURL("group.a"), std::nullopt);
}

TEST(DefaultFileManager, ReadsEveryTimeAnew) {
    const support::TemporaryFolder folder;
    const auto manager = managerWith({});
    const auto path = folder.write("estado.json", "one");
    EXPECT_EQ(manager.contents(path), "one");
    folder.write("estado.json", "two");
    EXPECT_EQ(manager.contents(path), "two");
    EXPECT_THROW(manager.contents(folder.path() / "missing"), FileError);
}

TEST(MemoryFileManager, CountsReadsAndThrowsAsTheRealOneDoes) {
    support::MemoryFileManager manager;
    manager.containers["group.a"] = "/c";
    manager.files["/c/estado.json"] = "{}";
    EXPECT_EQ(manager.containerURL("group.a"), "/c");
    EXPECT_EQ(manager.containerURL("group.b"), std::nullopt);
    EXPECT_EQ(manager.contents("/c/estado.json"), "{}");
    EXPECT_THROW(manager.contents("/c/other"), FileError);
    EXPECT_EQ(manager.reads(), 2u);
    EXPECT_EQ(manager.askedGroups(), (std::vector<std::string>{"group.a", "group.b"}));
}

}  // namespace
}  // namespace foundation

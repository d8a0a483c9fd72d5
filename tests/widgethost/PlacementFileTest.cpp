#include "support/Program.hpp"
#include "support/TemporaryFolder.hpp"
#include "widgethost/Monitors.hpp"
#include "widgethost/PlacementFile.hpp"

#include <gmock/gmock.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <climits>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <iterator>

namespace widgethost {
namespace {

struct SavedPlacement : testing::Test {
    support::TemporaryFolder folder;
    std::filesystem::path path = folder.path() / "settings" / "nurva-widgets" / "placement.json";
    std::filesystem::path aside = path.string() + ".bad";
    std::vector<std::string> reports;
    PlacementFile file{path, [this](const std::string& text) { reports.push_back(text); }};

    void write(std::string_view text) {
        folder.write("settings/nurva-widgets/placement.json", text);
    }
};

const Placement sample{
    .widgets = {{"nurva.tuCuarto", 1, desk().identity, 8, 0},
                {"nurva.volumenPorApp", 2, monitor("«ñ\"/\\", -5, -7, 1, 2).identity, -3, 99}},
    .windowsExplained = true};

TEST_F(SavedPlacement, ReadsBackTheSame) {
    for (const Placement& placement : {sample, Placement{}}) {
        file.save(placement);
        EXPECT_EQ(file.load(), placement);
    }
    EXPECT_THAT(reports, testing::IsEmpty());
}

TEST_F(SavedPlacement, IsNothingBeforeTheFirstTime) {
    EXPECT_EQ(file.load(), std::nullopt);
    EXPECT_THAT(reports, testing::IsEmpty());
}

TEST_F(SavedPlacement, LeavesNothingElseInItsFolder) {
    file.save(sample);
    file.save(Placement{});
    const std::filesystem::directory_iterator entries(path.parent_path());
    EXPECT_EQ(std::distance(begin(entries), end(entries)), 1);
    struct stat status {};
    ASSERT_EQ(::stat(path.parent_path().c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777, 0700u);
}

TEST_F(SavedPlacement, ThatMakesNoSenseIsKeptAsideWithAMessage) {
    const std::string whole = [this] {
        file.save(sample);
        return support::contentsOf(path);
    }();
    std::vector<std::string> texts{"", "{}", "null", "[1]", "\xff", whole + "}"};
    for (std::size_t length = 1; length < whole.size(); length += 7)
        texts.push_back(whole.substr(0, length));
    const auto with = [](const std::string& span, const std::string& cell) {
        return R"({"widgets":[{"kind":"a","span":)" + span +
               R"(,"monitor":{"connector":"","x":0,"y":0,"width":1,"height":1},)" + cell +
               R"(}],"windowsExplained":false})";
    };
    for (const char* span : {"0", "-1", "9", "1e300", "\"1\""})
        texts.push_back(with(span, R"("column":0,"row":0)"));
    for (const std::string far : {"10001", "-10001", "-9223372036854775808", "0.5"}) {
        texts.push_back(with("1", R"("column":)" + far + R"(,"row":0)"));
        texts.push_back(with("1", R"("column":0,"row":)" + far));
    }
    for (const std::string& text : texts) {
        reports.clear();
        std::filesystem::remove(aside);
        write(text);
        EXPECT_EQ(file.load(), std::nullopt) << text;
        EXPECT_EQ(support::contentsOf(aside), text);
        EXPECT_FALSE(std::filesystem::exists(path));
        EXPECT_THAT(reports, testing::ElementsAre(testing::HasSubstr(aside.string()))) << text;
    }
}

TEST_F(SavedPlacement, ThatMakesNoSenseLeavesWhatWasKeptAsideBefore) {
    std::filesystem::create_directories(aside);
    for (const char* text : {"first", "second"}) {
        write(text);
        EXPECT_EQ(file.load(), std::nullopt);
    }
    EXPECT_TRUE(std::filesystem::is_directory(aside));
    EXPECT_EQ(support::contentsOf(aside.string() + "2"), "first");
    EXPECT_EQ(support::contentsOf(aside.string() + "3"), "second");
    EXPECT_THAT(reports, testing::ElementsAre(testing::HasSubstr(aside.string() + "2"),
                                              testing::HasSubstr(aside.string() + "3")));
}

TEST_F(SavedPlacement, ThatCannotBeKeptAsideStaysWhereItIs) {
    const std::string longestName(NAME_MAX, 'x');
    folder.write(longestName, "no placement");
    std::vector<std::string> told;
    const PlacementFile stuck(folder.path() / longestName,
                              [&](const std::string& text) { told.push_back(text); });
    EXPECT_EQ(stuck.load(), std::nullopt);
    EXPECT_EQ(support::contentsOf(folder.path() / longestName), "no placement");
    EXPECT_THAT(told, testing::ElementsAre(testing::HasSubstr(std::strerror(ENAMETOOLONG))));
}

TEST_F(SavedPlacement, ThatIsAFolderIsKeptAsideToo) {
    std::filesystem::create_directories(path / "inside");
    EXPECT_EQ(file.load(), std::nullopt);
    EXPECT_TRUE(std::filesystem::is_directory(aside));
    file.save(sample);
    EXPECT_EQ(file.load(), sample);
}

TEST_F(SavedPlacement, ThatCannotBeWrittenIsReported) {
    folder.write("settings", "a file where a folder should be");
    file.save(sample);
    EXPECT_THAT(reports, testing::SizeIs(1));
}

TEST_F(SavedPlacement, IsWholeAfterAProcessWasKilledWhileSavingAndNothingStaysBehind) {
    file.save(sample);
    const int kills = std::getenv("NURVA_LONG") ? 1000 : 20;
    RecordProperty("kills", kills);
    for (int turn = 0; turn < kills; ++turn) {
        const pid_t child = ::fork();
        while (child == 0) {
            file.save(Placement{});
            file.save(sample);
        }
        ASSERT_GT(child, 0);
        ::usleep(static_cast<useconds_t>(500 + turn % 100 * 97));
        ::kill(child, SIGKILL);
        ASSERT_EQ(::waitpid(child, nullptr, 0), child);
        const auto placement = file.load();
        EXPECT_TRUE(placement == sample || placement == Placement{});
        file.save(sample);
        EXPECT_EQ(file.load(), sample);
        const std::filesystem::directory_iterator entries(path.parent_path());
        EXPECT_EQ(std::distance(begin(entries), end(entries)), 1);
    }
    EXPECT_THAT(reports, testing::IsEmpty());
}

TEST(PlacementFile, LiesWithTheUsersSettings) {
    const auto path = [](std::map<std::string, std::string, std::less<>> variables) {
        return PlacementFile::path(foundation::EnvironmentVariables(std::move(variables)));
    };
    EXPECT_EQ(path({{"XDG_CONFIG_HOME", "/c"}, {"HOME", "/h"}}), "/c/nurva-widgets/placement.json");
    EXPECT_EQ(path({{"HOME", "/h"}}), "/h/.config/nurva-widgets/placement.json");
    EXPECT_EQ(path({{"XDG_CONFIG_HOME", "relative"}, {"HOME", "/h"}}),
              "/h/.config/nurva-widgets/placement.json");
    EXPECT_EQ(path({}), std::nullopt);
}

}  // namespace
}  // namespace widgethost

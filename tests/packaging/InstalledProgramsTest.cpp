#include "packaging/Installed.hpp"

#include <gmock/gmock.h>

#include <algorithm>
#include <filesystem>
#include <set>
#include <sstream>
#include <string>
#include <vector>

namespace packaging {
namespace {

using std::filesystem::recursive_directory_iterator;
using support::contentsOf;
using support::Outcome;
using testing::Contains;
using testing::Each;
using testing::HasSubstr;
using testing::SizeIs;
using testing::StartsWith;

/// The command lines of all entries and services below a folder.
std::vector<std::string> commandLines(const std::string& folder) {
    std::vector<std::string> commands;
    for (const auto& file : recursive_directory_iterator(folder)) {
        if (file.path().extension() != ".desktop" && file.path().extension() != ".service")
            continue;
        std::istringstream lines(contentsOf(file.path()));
        for (std::string line; std::getline(lines, line);)
            if (line.starts_with("Exec"))
                commands.push_back(line.substr(line.find('=') + 1));
    }
    return commands;
}

using InstalledPrograms = Installed;

TEST_F(InstalledPrograms, FindOneAnotherAndTheirBundle) {
    const Outcome doctor =
        support::run(inSession("dbus-run-session -- '" + at("bin/nurva") + "' doctor"));
    EXPECT_THAT(doctor.output,
                HasSubstr("✓ paquete: " + at("share/nurva-widgets/NurvaWidgets.appex")));
    EXPECT_THAT(doctor.output,
                HasSubstr("✓ extensión: " + at("libexec/nurva-widgets/nurva-widgets-extension") +
                          ", con 4 widgets"));
    const Outcome desktop = support::run(inSession("'" + at("bin/nurva") + "' desktop"));
    EXPECT_EQ(desktop.status, 1);
    EXPECT_THAT(desktop.errors, HasSubstr("no hay pantalla"));
}

TEST_F(InstalledPrograms, AreWhatEntriesAndServicesStart) {
    const auto commands = commandLines(at("share"));
    EXPECT_THAT(commands, SizeIs(5));
    EXPECT_THAT(commands, Each(StartsWith('"' + at("bin/nurva") + "\" ")));
}

TEST_F(InstalledPrograms, StandInTheManifestByWhichTheyAreRemoved) {
    std::istringstream manifest(contentsOf(NURVA_BUILD_FOLDER "/install_manifest.txt"));
    std::set<std::string> named;
    for (std::string line; std::getline(manifest, line);)
        named.insert(line);
    std::set<std::string> installed;
    for (const auto& entry : recursive_directory_iterator(at("")))
        if (!entry.is_directory())
            installed.insert(entry.path());
    EXPECT_EQ(named, installed);
}

TEST_F(InstalledPrograms, AreStartedByTheBusWhenTheWidgetHostIsCalled) {
    const Outcome call = support::run(inSession(
        "dbus-run-session -- dbus-send --session --print-reply --dest=org.nurva.WidgetCenter "
        "/org/nurva/WidgetCenter org.nurva.WidgetCenter.ReloadAllTimelines"));
    EXPECT_THAT(call.errors, HasSubstr("nurva-desktop: no hay pantalla"));
}

TEST(StagedInstallation, NamesThePlaceWhereItWillBe) {
    const support::TemporaryFolder stage;
    const Outcome installing =
        support::run("DESTDIR='" + stage.path().string() +
                     "' cmake --install '" NURVA_BUILD_FOLDER "' --prefix /opt/nurva");
    ASSERT_EQ(installing.status, 0) << installing.errors;
    const auto commands = commandLines((stage.path() / "opt/nurva/share").string());
    EXPECT_THAT(commands, SizeIs(5));
    EXPECT_THAT(commands, Each(StartsWith("/opt/nurva/bin/nurva ")));
}

}  // namespace
}  // namespace packaging

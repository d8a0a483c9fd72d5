#include "cli/CommandLine.hpp"
#include "cli/Findings.hpp"
#include "platform/foundation/SystemClock.hpp"
#include "platform/sandbox/LandlockRights.hpp"

#include <seccomp.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <vector>

namespace {

/// What `nurva doctor` says to a user with a session bus of their own.
struct Doctor : CommandLine {
    Outcome examine(const std::string& settings = {}) const {
        return support::run("dbus-run-session -- env -u LANGUAGE -u LC_ALL LANG=es_ES.UTF-8 " +
                            settings + " XDG_DATA_HOME='" + home.path().string() +
                            "' " NURVA_PROGRAM " doctor");
    }
    void publishNow(double age = 0) const {
        json fresh = snapshot();
        fresh["cuando"] = foundation::SystemClock().now().secondsSinceReferenceDate - age;
        publish(fresh);
    }
};

bool says(const Outcome& outcome, const std::string& text) {
    return outcome.output.find(text) != std::string::npos;
}

TEST_F(Doctor, FindsNothingWrongWhereAllIsThere) {
    publishNow();
    const Outcome outcome = examine("DISPLAY=other-machine:0");
    EXPECT_EQ(outcome.status, 0) << outcome.output << outcome.errors;
    EXPECT_TRUE(says(outcome, "✓ contenedor: " + container().string())) << outcome.output;
    EXPECT_TRUE(says(outcome, "✓ estado: ")) << outcome.output;
    EXPECT_TRUE(says(outcome, "✓ bus de sesión")) << outcome.output;
    EXPECT_TRUE(says(outcome, "con 4 widgets")) << outcome.output;
    EXPECT_TRUE(says(outcome, "✓ pantalla: X11")) << outcome.output;
    EXPECT_FALSE(says(outcome, "✗")) << outcome.output;
}

TEST_F(Doctor, SaysWhatIsMissingAndWhatToDo) {
    std::filesystem::remove_all(container());
    const Outcome outcome = examine();
    EXPECT_EQ(outcome.status, 1);
    EXPECT_TRUE(says(outcome, "✗ no existe el contenedor")) << outcome.output;
    EXPECT_TRUE(says(outcome, "abre Nurva una vez")) << outcome.output;
    EXPECT_TRUE(says(outcome, "· no hay pantalla")) << outcome.output;
}

TEST_F(Doctor, AsksNobodyToOpenTheHostWhereTheFolderIsUnknown) {
    const Outcome outcome = support::run(
        "dbus-run-session -- env -u LANGUAGE -u LC_ALL -u HOME -u XDG_DATA_HOME "
        "LANG=es_ES.UTF-8 " NURVA_PROGRAM " doctor");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_TRUE(says(outcome, "✗ no se sabe cuál es tu carpeta: falta HOME")) << outcome.output;
    EXPECT_FALSE(says(outcome, "abre Nurva")) << outcome.output;
}

TEST_F(Doctor, TellsWhyASnapshotIsRefused) {
    json broken = snapshot();
    broken.erase("salida");
    publish(broken);
    const Outcome outcome = examine();
    EXPECT_EQ(outcome.status, 1);
    EXPECT_TRUE(says(outcome, "keyNotFound")) << outcome.output;
    EXPECT_TRUE(says(outcome, "salida")) << outcome.output;
}

TEST_F(Doctor, TellsTheAgeOfASnapshotAndThatItIsTooOld) {
    publishNow(1800);
    const Outcome outcome = examine();
    EXPECT_EQ(outcome.status, 0) << outcome.output;
    EXPECT_TRUE(says(outcome, "· estado: ")) << outcome.output;
    EXPECT_TRUE(says(outcome, "de hace 180")) << outcome.output;
}

TEST_F(Doctor, WondersAtASnapshotOfTheFuture) {
    publishNow(-978307200);
    const Outcome outcome = examine();
    EXPECT_EQ(outcome.status, 0) << outcome.output;
    EXPECT_TRUE(says(outcome, "· estado: ")) << outcome.output;
    EXPECT_TRUE(says(outcome, "con fecha de dentro de 978")) << outcome.output;
    EXPECT_TRUE(says(outcome, "desde 2001-01-01")) << outcome.output;
}

TEST_F(Doctor, SeesABundleThatIsNotThereOrNotEntitled) {
    publishNow();
    EXPECT_TRUE(says(examine("NURVA_BUNDLE=/nowhere"), "✗ no está el paquete"));
    const auto other = home.path() / "Other.appex";
    std::filesystem::create_directory(other);
    std::filesystem::copy(NURVA_RESOURCES_FOLDER "/NurvaWidgets.appex/Info.plist", other);
    EXPECT_TRUE(says(examine("NURVA_BUNDLE='" + other.string() + "'"), "no tiene permiso"));
}

TEST_F(Doctor, SaysThatTheBundleNamesNoGroupThatCanBeAFolder) {
    for (const std::string group : {"", "a/b"}) {
        const auto bundle = home.path() / "Other.appex";
        std::filesystem::create_directory(bundle);
        std::ofstream(bundle / "Info.plist")
            << "<plist version=\"1.0\"><dict><key>CFBundleIdentifier</key><string>a</string>"
               "<key>GrupoDeApps</key><string>"
            << group << "</string></dict></plist>";
        const std::string settings = "NURVA_BUNDLE='" + bundle.string() + "'";
        const std::string said =
            "el paquete no nombra ningún grupo que pueda ser una carpeta: «" + group + "»\n";
        const Outcome outcome = examine(settings);
        EXPECT_TRUE(says(outcome, "✗ " + said + "    revisa GrupoDeApps")) << outcome.output;
        EXPECT_FALSE(says(outcome, "permiso")) << outcome.output;
        for (const char* command : {"timeline nurva.tuCuarto", "perform AlternarEncendido"})
            EXPECT_EQ(support::run("env -u LANGUAGE -u LC_ALL LANG=es_ES.UTF-8 " + settings +
                                   " " NURVA_PROGRAM " " + command)
                          .errors,
                      "nurva: " + said);
    }
}

TEST_F(Doctor, SaysThatTheSystemHasNoWatchLeftForAFolder) {
    if (support::run("unshare --map-root-user true").status != 0)
        GTEST_SKIP() << "no user of one's own, for whom there are none, can be made here";
    const Outcome outcome = support::run(
        "unshare --map-root-user sh -c 'echo 0 >/proc/sys/user/max_inotify_instances && "
        "env -u LANGUAGE -u LC_ALL LANG=es_ES.UTF-8 XDG_DATA_HOME=\"" +
        home.path().string() + "\" " NURVA_PROGRAM " doctor'");
    EXPECT_NE(outcome.errors.find("nurva: no se puede vigilar " + container().string()),
              std::string::npos)
        << outcome.errors;
    EXPECT_TRUE(says(outcome, "con 4 widgets")) << "and goes on: " << outcome.output;
}

/// Looks at the extension where this process may have no timer, and ends with what is found.
[[noreturn]] void examineExtensionWithoutTimers() {
    ::setenv("LANGUAGE", "es", 1);
    const scmp_filter_ctx filter = ::seccomp_init(SCMP_ACT_ALLOW);
    if (::seccomp_rule_add(filter, SCMP_ACT_ERRNO(EMFILE), SCMP_SYS(timerfd_create), 0) != 0 ||
        ::seccomp_load(filter) != 0)
        ::_exit(9);
    const std::vector<cli::Finding> findings = cli::extensionFindings();
    std::cerr << findings.at(0).text << "; " << findings.at(0).advice;
    ::_exit(findings.at(0).kind == cli::Finding::Kind::lacks ? 0 : 1);
}

TEST(Findings, SayWhyTheExtensionCannotBeStarted) {
    EXPECT_EXIT(examineExtensionWithoutTimers(), testing::ExitedWithCode(0),
                "no se puede arrancar la extensión: timerfd: .*; cierra otros programas");
}

TEST(Findings, NoteWhereTheKernelDoesNotGrantTheWholeIsolation) {
    using enum cli::Finding::Kind;
    const auto kinds = [](int landlock, bool callsAreFiltered) {
        std::vector<cli::Finding::Kind> all;
        for (const cli::Finding& finding : cli::sandboxFindings({landlock, callsAreFiltered})) {
            EXPECT_EQ(finding.advice.empty(), finding.kind == holds) << finding.text;
            all.push_back(finding.kind);
        }
        return all;
    };
    EXPECT_EQ(kinds(0, true), (std::vector{note, holds, note}));
    EXPECT_EQ(kinds(2, true), (std::vector{holds, holds, note}));
    EXPECT_EQ(kinds(sandbox::newestLandlockABI, false), (std::vector{holds, note, note}));
    EXPECT_EQ(kinds(sandbox::newestLandlockABI, true), (std::vector{holds, holds}));
}

TEST_F(CommandLine, LooksForABusEvenWhereThereIsNone) {
    const Outcome outcome = support::run(
        "env -u DBUS_SESSION_BUS_ADDRESS XDG_RUNTIME_DIR=/nowhere LANG=es_ES.UTF-8 "
        "XDG_DATA_HOME='" +
        home.path().string() + "' " NURVA_PROGRAM " doctor");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_TRUE(says(outcome, "✗ no hay bus de sesión")) << outcome.output;
}

TEST_F(CommandLine, SaysThatNoWidgetHostIsThereToReload) {
    const std::string run = "dbus-run-session -- env LANG=es_ES.UTF-8 " NURVA_PROGRAM " reload";
    const Outcome all = support::run(run);
    EXPECT_EQ(all.status, 1);
    EXPECT_NE(all.errors.find("nurva desktop"), std::string::npos) << all.errors;
    EXPECT_EQ(support::run(run + " nurva.tuCuarto").status, 1);
    EXPECT_EQ(support::run(run + " nurva.otro").status, 2);
    EXPECT_EQ(support::run("env -u DBUS_SESSION_BUS_ADDRESS XDG_RUNTIME_DIR=/nowhere " NURVA_PROGRAM
                           " reload")
                  .status,
              1);
}

TEST_F(CommandLine, OpensNoDesktopWithoutADisplay) {
    const Outcome outcome =
        support::run("env -u DISPLAY -u WAYLAND_DISPLAY LANG=es_ES.UTF-8 HOME='" +
                     home.path().string() + "' " NURVA_PROGRAM " desktop");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_NE(outcome.errors.find("no hay pantalla"), std::string::npos) << outcome.errors;
}

}  // namespace

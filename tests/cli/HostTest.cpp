#include "cli/CommandLine.hpp"

namespace {

TEST_F(CommandLine, HostsADemoThatDoesWhatAWidgetAsksFor) {
    // A bus of its own, the host in the background until the end, a press, and what came of it.
    const std::string state = container().string() + "/estado.json";
    const std::string program =
        "env -u LANGUAGE -u LC_ALL -u LC_MESSAGES LANG=es_ES.UTF-8 XDG_DATA_HOME='" +
        home.path().string() + "' " NURVA_PROGRAM;
    const Outcome outcome =
        support::run("cat >script <<'END'\n" + program +
                     " host --demo --scene musica & host=$!\n"
                     "for i in $(seq 100); do [ -s '" +
                     state + "' ] && break; sleep 0.05; done\n" + program +
                     " perform PonerVolumen clave=org.ejemplo.navegador nivel=0.625\n"
                     "for i in $(seq 100); do grep -q '0.625' '" +
                     state + "' && break; sleep 0.05; done\n" + program +
                     " perform PonerVolumen clave=nadie nivel=0.5\n"
                     "sleep 0.2; kill $host; wait $host; echo ended $?; cat '" +
                     state +
                     "'\n"
                     "END\n"
                     "dbus-run-session -- sh script");
    EXPECT_NE(outcome.output.find("ended 0"), std::string::npos) << outcome.output;
    EXPECT_NE(outcome.output.find("\"nivel\":0.625"), std::string::npos) << outcome.output;
    EXPECT_NE(outcome.errors.find("no hay ninguna app con ese id"), std::string::npos)
        << outcome.errors;
}

TEST_F(CommandLine, HostsForNobodyWithoutAFolder) {
    const Outcome outcome = support::run(
        "env -u HOME -u XDG_DATA_HOME LANGUAGE=es LANG=es_ES.UTF-8 " NURVA_PROGRAM " host --demo");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.errors, "nurva: no se sabe cuál es tu carpeta: falta HOME\n");
}

TEST_F(CommandLine, RefusesToHostWithoutABusOrScene) {
    EXPECT_EQ(nurva("host").status, 2);
    EXPECT_EQ(nurva("host --demo --scene nada").status, 2);
    const Outcome outcome =
        support::run("env -u DBUS_SESSION_BUS_ADDRESS XDG_RUNTIME_DIR=/nowhere XDG_DATA_HOME='" +
                     home.path().string() + "' " NURVA_PROGRAM " host --demo");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_NE(outcome.errors.find("dbus-run-session"), std::string::npos) << outcome.errors;
}

}  // namespace

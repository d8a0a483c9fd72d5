#include "cli/CommandLine.hpp"

#include <algorithm>
#include <set>
#include <sstream>
#include <vector>

namespace {

TEST_F(CommandLine, DrawsTheFaceOfASnapshotAsASceneInJSON) {
    const Outcome outcome =
        nurva("render nurva.queEstaPuesto --format json --now 804686460 --state " + example);
    ASSERT_EQ(outcome.status, 0) << outcome.errors;
    EXPECT_EQ(outcome.errors, "");
    const json scene = json::parse(outcome.output);
    EXPECT_EQ(scene["kind"], "nurva.queEstaPuesto");
    EXPECT_EQ(scene["family"], "systemSmall");
    EXPECT_EQ(scene["size"], json({170, 170}));
    EXPECT_EQ(scene["scale"], 2);
    EXPECT_EQ(scene["background"], json({0.086, 0.098, 0.106, 1}));
    EXPECT_EQ(scene["entry"],
              json({{"date", 804686460}, {"hasState", true}, {"reloadAfter", 804686460 + 900}}));
    EXPECT_EQ(scene["drawing"][0]["op"], "text");
    EXPECT_EQ(scene["drawing"][0]["text"], "NURVA");
    EXPECT_EQ(scene["controls"], json::array());
    EXPECT_EQ(scene["accessibility"][1]["label"], "Voz clara");
}

TEST_F(CommandLine, DrawsPNGAndSVG) {
    const std::string base = "render nurva.queEstaPuesto --now 804686460 --state " + example;
    EXPECT_TRUE(nurva(base + " --output a.png && cat a.png").output.starts_with("\x89PNG"));
    EXPECT_TRUE(nurva(base + " | cat").output.starts_with("\x89PNG"));
    EXPECT_NE(nurva(base + " --format svg").output.find("<svg"), std::string::npos);
}

TEST_F(CommandLine, TakesScaleAndSizeOfTheCard) {
    const json scene = json::parse(
        nurva("render nurva.queEstaPuesto --format json --scale 1.5 --family-size 200x180.5")
            .output);
    EXPECT_EQ(scene["scale"], 1.5);
    EXPECT_EQ(scene["size"], json({200, 180.5}));
}

TEST_F(CommandLine, ReadsTheContainersSnapshotByItself) {
    json now = snapshot();
    now["perfil"] = "Cine";
    publish(now);
    const json scene =
        json::parse(nurva("render nurva.queEstaPuesto --format json --now 804686460").output);
    EXPECT_EQ(scene["drawing"][4]["text"], "Cine");
}

TEST_F(CommandLine, ReadsASnapshotFromStandardInput) {
    const json scene = json::parse(
        nurva("render nurva.queEstaPuesto --format json --now 804686460 --state - <" + example)
            .output);
    EXPECT_EQ(scene["entry"]["hasState"], true);
}

TEST_F(CommandLine, DrawsTheClosedFaceOfAnOldSnapshotWithoutComplaint) {
    const Outcome outcome =
        nurva("render nurva.queEstaPuesto --format json --now 804687300 --state " + example);
    EXPECT_EQ(outcome.errors, "");
    EXPECT_EQ(json::parse(outcome.output)["drawing"][1]["text"],
              "Nurva está cerrado. Ábrelo y este widget se pone al día.");
}

TEST_F(CommandLine, DrawsTheFaceWithoutDataAndSaysWhy) {
    struct Case {
        std::string state;
        std::string reason;
        std::string file;
    };
    const std::vector<Case> cases{
        {"--state /nowhere/a.json", "unreadable", " /nowhere/a.json: "},
        {"--state /dev/null", "(unreadable): no es un archivo normal", " /dev/null: "},
        {"--state " + file("{", "half.json"), "dataCorrupted", "/half.json: "},
        {"--state " + file("{}", "empty.json"), "keyNotFound", "/empty.json: "},
        {"", "unreadable", "/group.org.nurva.Nurva/estado.json: "},
    };
    for (const auto& [state, reason, file] : cases) {
        const Outcome outcome = nurva("render nurva.queEstaPuesto --format json " + state);
        EXPECT_EQ(outcome.status, 0) << state;
        EXPECT_NE(outcome.errors.find(reason), std::string::npos) << outcome.errors;
        EXPECT_NE(outcome.errors.find(file), std::string::npos) << outcome.errors;
        EXPECT_EQ(json::parse(outcome.output)["drawing"][1]["text"],
                  "Abre Nurva una vez y este widget se llena.");
    }
}

TEST_F(CommandLine, SaysThatThereIsNoContainer) {
    std::filesystem::remove_all(container());
    const Outcome outcome = nurva("timeline nurva.queEstaPuesto");
    EXPECT_EQ(outcome.status, 0);
    EXPECT_NE(outcome.errors.find("group.org.nurva.Nurva"), std::string::npos) << outcome.errors;
}

TEST_F(CommandLine, PrintsTheEntryOfTheTimeline) {
    const Outcome outcome =
        nurva("timeline nurva.queEstaPuesto --now 804686460 --state " + example);
    const json entry = json::parse(outcome.output);
    EXPECT_EQ(entry["date"], 804686460);
    EXPECT_EQ(entry["reloadAfter"], 804686460 + 900);
    EXPECT_EQ(entry["state"], snapshot());
}

TEST_F(CommandLine, PrintsNullForAnEntryWithoutAState) {
    const json entry = json::parse(nurva("timeline nurva.queEstaPuesto --now 5").output);
    EXPECT_EQ(entry, json({{"date", 5}, {"state", nullptr}, {"reloadAfter", 905}}));
}

TEST_F(CommandLine, PrintsThePlaceholderWhateverTheContainerHolds) {
    publish(snapshot());
    const json entry = json::parse(nurva("placeholder nurva.queEstaPuesto --now 5").output);
    EXPECT_EQ(entry["date"], 5);
    EXPECT_EQ(entry["state"]["perfil"], "Música");
    EXPECT_EQ(entry["state"]["cuando"], 5);
    EXPECT_FALSE(entry.contains("reloadAfter"));
}

TEST_F(CommandLine, AcceptsAGoodSnapshot) {
    const Outcome outcome = nurva("check " + example);
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.output, example + ": aceptado\n");
    const json line = json::parse(nurva("check --json " + example).output);
    EXPECT_EQ(line, json({{"file", example}, {"ok", true}, {"value", snapshot()}}));
}

TEST_F(CommandLine, SaysWhereAndWhyASnapshotIsRefused) {
    json bad = snapshot();
    bad["apps"][0].erase("nivel");
    const std::string name = file(bad.dump());
    const Outcome outcome = nurva("check " + name);
    EXPECT_EQ(outcome.status, 1);
    EXPECT_NE(outcome.output.find("keyNotFound"), std::string::npos) << outcome.output;
    EXPECT_NE(outcome.output.find("apps.0.nivel"), std::string::npos) << outcome.output;
    const Outcome asJSON = nurva("check --json " + name + " " + example);
    EXPECT_EQ(asJSON.status, 1);
    const json line = json::parse(asJSON.output.substr(0, asJSON.output.find('\n')));
    EXPECT_EQ(line["ok"], false);
    EXPECT_EQ(line["kind"], "keyNotFound");
    EXPECT_EQ(line["path"], "apps.0.nivel");
    EXPECT_NE(line["reason"], "");
    EXPECT_TRUE(json::parse(asJSON.output.substr(asJSON.output.find('\n')))["ok"]);
}

TEST_F(CommandLine, SaysWhatStandsInThePlaceOfWhat) {
    json bad = snapshot();
    bad["salida"] = 5;
    const Outcome outcome = nurva("check " + file(bad.dump()));
    EXPECT_NE(outcome.output.find("en salida: el valor es de otro tipo: Expected to decode String "
                                  "but found number instead."),
              std::string::npos)
        << outcome.output;
}

TEST_F(CommandLine, RefusesWhatIsNoFile) {
    const json line = json::parse(nurva("check --json /nowhere").output);
    EXPECT_EQ(line["ok"], false);
    EXPECT_EQ(line["kind"], "unreadable");
    EXPECT_EQ(nurva("check /nowhere").status, 1);
    EXPECT_EQ(nurva("check /").status, 1);
}

TEST_F(CommandLine, RefusesWrongUseWithAMessage) {
    for (const char* arguments : {"",
                                  "nonsense",
                                  "render",
                                  "render nurva.nada",
                                  "render nurva.queEstaPuesto --scale 0",
                                  "render nurva.queEstaPuesto --scale -1",
                                  "render nurva.queEstaPuesto --scale nan",
                                  "render nurva.queEstaPuesto --scale inf",
                                  "render nurva.queEstaPuesto --scale dos",
                                  "render nurva.queEstaPuesto --scale 1e9",
                                  "render nurva.queEstaPuesto --now luego",
                                  "render nurva.queEstaPuesto --now nan",
                                  "render nurva.queEstaPuesto --format gif",
                                  "render nurva.queEstaPuesto --family-size 170",
                                  "render nurva.queEstaPuesto --family-size 0x0",
                                  "render nurva.queEstaPuesto --family-size 10x10x10",
                                  "render nurva.queEstaPuesto --family-size 1e9x1e9",
                                  "render nurva.queEstaPuesto sobra",
                                  "render nurva.queEstaPuesto --sobra",
                                  "timeline nurva.nada",
                                  "placeholder",
                                  "check"}) {
        const Outcome outcome = nurva(arguments);
        EXPECT_EQ(outcome.status, 2) << arguments;
        EXPECT_EQ(outcome.output, "") << arguments;
        EXPECT_TRUE(outcome.errors.starts_with("nurva: ")) << arguments << ": " << outcome.errors;
    }
}

TEST_F(CommandLine, NamesWhatIsWrongInTheUsersWords) {
    struct Case {
        std::string arguments;
        std::string said;
    };
    const std::vector<Case> cases{
        {"", "falta la orden; hay: render, "},
        {"rendr", "no hay ninguna orden «rendr»; hay: render, "},
        {"--versio", "sobra algo en la orden: --versio\n       ayuda: nurva --help"},
        {"render", "falta algo en la orden: kind\n       ayuda: nurva render --help"},
        {"render nurva.tuCuarto b --c", "sobra algo en la orden: b --c\n"},
        {"render nurva.tuCuarto --scale dos",
         "no sirve: --scale dos (Píxeles por punto; si falta, 2)\n"},
        {"render nurva.tuCuarto --format gif",
         "no sirve: --format gif (png, svg o json; si falta, png)\n"},
        {"render nurva.tuCuarto --state", "no sirve: --state (Archivo del estado"},
        {"completions ksh", "no sirve: shell ksh (bash, zsh o fish)\n"},
        {"check-request",
         "falta algo en la orden: files\n       ayuda: nurva check-request --help"},
    };
    for (const auto& [arguments, said] : cases)
        EXPECT_NE(nurva(arguments).errors.find(said), std::string::npos)
            << arguments << ": " << nurva(arguments).errors;
}

TEST_F(CommandLine, LinesUpTheHelpWhateverTheLanguage) {
    std::istringstream help(nurva("render --help").output);
    std::set<std::size_t> columns;
    for (std::string line; std::getline(help, line);) {
        const std::size_t last = line.rfind("   ");
        if (!line.starts_with("  ") || last == std::string::npos)
            continue;
        const auto letters = std::count_if(line.begin(), line.begin() + static_cast<int>(last),
                                           [](unsigned char byte) { return byte >> 6 != 0b10; });
        columns.insert(static_cast<std::size_t>(letters));
    }
    EXPECT_EQ(columns.size(), 1u) << nurva("render --help").output;
}

TEST_F(CommandLine, NamesTheKindsThereAre) {
    EXPECT_NE(nurva("render nurva.nada").errors.find("nurva.queEstaPuesto"), std::string::npos);
}

TEST_F(CommandLine, LeavesNoPartOfAFileBehind) {
    const std::string draw = "render nurva.queEstaPuesto --now 804686460 --state " + example;
    const Outcome outcome = nurva(draw + " --output /nowhere/a.png");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_NE(outcome.errors.find("/nowhere/a.png"), std::string::npos) << outcome.errors;
    EXPECT_EQ(nurva(draw + " --output /dev/full").status, 1);
    EXPECT_EQ(nurva(draw + " >/dev/full").status, 1);
    EXPECT_EQ(nurva(draw + " --output a.png && ls -A").output, "a.png\nerr\nout\n");
}

TEST_F(CommandLine, KeepsTheOldFileWhenTheNewOneIsRefused) {
    const Outcome outcome =
        nurva("render nurva.queEstaPuesto --scale 1e9 --output a.png; echo old >b; cat b");
    EXPECT_EQ(outcome.output, "old\n");
}

TEST_F(CommandLine, WritesIntoADeviceInsteadOfReplacingIt) {
    EXPECT_EQ(nurva("render nurva.queEstaPuesto --output /dev/null").status, 0);
    EXPECT_TRUE(std::filesystem::is_character_file("/dev/null"));
}

TEST_F(CommandLine, HelpsInTheUsersLanguage) {
    const Outcome spanish = nurva("--help");
    EXPECT_EQ(spanish.status, 0);
    EXPECT_NE(spanish.output.find("Dibuja un widget"), std::string::npos) << spanish.output;
    const Outcome english = nurva("render --help", "en_GB.UTF-8");
    EXPECT_EQ(english.status, 0);
    EXPECT_NE(english.output.find("Pixels per point"), std::string::npos) << english.output;
    EXPECT_EQ(english.output.find("Píxeles"), std::string::npos) << english.output;
}

TEST_F(CommandLine, TellsWhatKindOfValueAnOptionTakes) {
    const std::string render = nurva("render --help", "en_GB.UTF-8").output;
    for (const char* option : {"--state FILE", "--now NUMBER", "--scale NUMBER", "--output FILE"})
        EXPECT_NE(render.find(option), std::string::npos) << option << ": " << render;
    const std::string desktop = nurva("desktop --help", "en_GB.UTF-8").output;
    for (const char* option : {"--scale NUMBER", "--extension FILE"})
        EXPECT_NE(desktop.find(option), std::string::npos) << option << ": " << desktop;
    const std::string check = nurva("check --help", "en_GB.UTF-8").output;
    EXPECT_NE(check.find("files FILE ..."), std::string::npos) << check;
}

TEST_F(CommandLine, SpeaksOfFaultsInTheUsersLanguage) {
    EXPECT_NE(nurva("render nurva.nada", "en_GB.UTF-8").errors.find("there is no widget"),
              std::string::npos);
    EXPECT_NE(nurva("render nurva.nada", "es_MX.UTF-8").errors.find("no hay ningún widget"),
              std::string::npos);
}

TEST_F(CommandLine, WritesNumbersOfTheSceneTheSameInEveryLocale) {
    const std::string draw =
        "render nurva.queEstaPuesto --format json --now 804686460.5 --state " + example;
    EXPECT_EQ(nurva(draw, "es_ES.UTF-8").output, nurva(draw, "C").output);
}

TEST_F(CommandLine, ListsTheGallery) {
    const json gallery = json::parse(nurva("widgets --json").output);
    ASSERT_EQ(gallery.size(), 4u);
    EXPECT_EQ(gallery[0], json({{"kind", "nurva.queEstaPuesto"},
                                {"displayName", "Qué está puesto"},
                                {"description", "El perfil, su curva y por qué está puesto."},
                                {"families", {"systemSmall"}}}));
    EXPECT_EQ(gallery[3]["kind"], "nurva.volumenPorApp");
    EXPECT_EQ(gallery[3]["families"], json({"systemMedium"}));
    EXPECT_NE(nurva("widgets", "en_GB.UTF-8").output.find("Your room"), std::string::npos);
}

TEST_F(CommandLine, DrawsAllFourWidgets) {
    for (const char* kind : {"queEstaPuesto", "ponerUnPerfil", "tuCuarto", "volumenPorApp"}) {
        const json scene = json::parse(nurva(std::string("render nurva.") + kind +
                                             " --format json --now 804686460 --state " + example)
                                           .output);
        EXPECT_EQ(scene["entry"]["hasState"], true) << kind;
        EXPECT_GT(scene["drawing"].size(), 4u) << kind;
    }
}

TEST_F(CommandLine, WritesTheRequestOfAnAction) {
    EXPECT_EQ(nurva("perform PonerVolumen clave=a nivel=0.5").status, 0);
    EXPECT_EQ(support::contentsOf(container() / "peticion.json"),
              R"({"volumen":{"app":"a","nivel":0.5}})");
    EXPECT_EQ(nurva("perform SilenciarApp clave=a silenciar=no").status, 0);
    EXPECT_EQ(support::contentsOf(container() / "peticion.json"),
              R"({"silenciar":{"app":"a","si":false}})");
    EXPECT_EQ(nurva("perform AlternarEncendido").status, 0);
    EXPECT_EQ(support::contentsOf(container() / "peticion.json"), R"({"alternarEncendido":{}})");
    EXPECT_EQ(nurva("perform PonerPerfil id=p1").status, 0);
    EXPECT_EQ(support::contentsOf(container() / "peticion.json"), R"({"ponerPerfil":{"_0":"p1"}})");
}

TEST_F(CommandLine, SendsNothingForAnActionThatIsNotWhole) {
    for (const char* arguments :
         {"Nada", "PonerVolumen", "PonerVolumen clave=a", "PonerVolumen clave=a nivel=medio",
          "PonerVolumen clave=a nivel=1 otro=2", "PonerVolumen clave=a clave=b nivel=1",
          "SilenciarApp clave=a silenciar=quizás", "AlternarEncendido x=1", "PonerPerfil p1"}) {
        const Outcome outcome = nurva(std::string("perform ") + arguments);
        EXPECT_EQ(outcome.status, 2) << arguments;
        EXPECT_TRUE(outcome.errors.starts_with("nurva: ")) << arguments;
    }
    EXPECT_FALSE(std::filesystem::exists(container() / "peticion.json"));
}

TEST_F(CommandLine, SaysWhetherARequestIsAccepted) {
    const std::string good = file(R"({"volumen":{"app":"a","nivel":0.5}})", "good.json");
    const std::string bad = file(R"({"silenciar":{"app":"a"}})", "bad.json");
    EXPECT_EQ(nurva("check-request " + good).status, 0);
    EXPECT_EQ(json::parse(nurva("check-request --json " + good).output)["value"],
              json({{"volumen", {{"app", "a"}, {"nivel", 0.5}}}}));
    const json refused = json::parse(nurva("check-request --json " + bad).output);
    EXPECT_EQ(refused["kind"], "keyNotFound");
    EXPECT_EQ(refused["path"], "silenciar.si");
    EXPECT_EQ(nurva("check-request " + bad).status, 1);
    const json none = json::parse(nurva("check-request --json " + file("{}", "none.json")).output);
    EXPECT_EQ(none["kind"], "typeMismatch");
    EXPECT_EQ(none["reason"],
              "tiene que llevar una sola de estas claves: ponerPerfil, alternarEncendido, "
              "silenciar, volumen");
}

TEST_F(CommandLine, SaysWhereATextIsNoJSONAndWhichNumberDoesNotFit) {
    EXPECT_NE(nurva("check " + file("{\"perfil\":\n  x}")).output.find("línea 2, columna 3"),
              std::string::npos);
    json odd = snapshot();
    odd["acento"] = 1.5;
    const Outcome outcome = nurva("check " + file(odd.dump()));
    EXPECT_EQ(outcome.status, 1);
    EXPECT_NE(outcome.output.find("<1.5>"), std::string::npos) << outcome.output;
}

TEST_F(CommandLine, StopsAtALevelThatCannotBeShownAndSaysSo) {
    json loud = snapshot();
    loud["apps"][0]["nivel"] = 1e300;
    const std::string name = file(loud.dump());
    const Outcome stopped =
        nurva("render nurva.volumenPorApp --format json --now 804686460 --state " + name +
              " --output a.json");
    EXPECT_NE(stopped.status, 0);
    EXPECT_NE(stopped.errors.find("per cent"), std::string::npos) << stopped.errors;
    loud["apps"][0]["silenciada"] = true;
    EXPECT_EQ(nurva("render nurva.volumenPorApp --format json --now 804686460 --state " +
                    file(loud.dump()))
                  .status,
              0);
}

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

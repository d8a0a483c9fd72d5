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
    EXPECT_EQ(entry.at("reloadAfter"), nullptr);
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

TEST_F(CommandLine, LeavesNoPartOfAFileBehind) {
    const std::string draw = "render nurva.queEstaPuesto --now 804686460 --state " + example;
    const Outcome outcome = nurva(draw + " --output /nowhere/a.png");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_NE(outcome.errors.find("/nowhere/a.png"), std::string::npos) << outcome.errors;
    EXPECT_EQ(nurva(draw + " --output /dev/full").status, 1);
    EXPECT_EQ(nurva(draw + " >/dev/full").status, 1);
    EXPECT_EQ(nurva(draw + " --output a.png && ls -A").output, "a.png\nerr\nout\n");
}

TEST_F(CommandLine, SaysThatItsHelpCouldNotBeWritten) {
    for (const char* arguments : {"--help", "--version", "render --help"}) {
        const Outcome outcome = nurva(std::string(arguments) + " >/dev/full");
        EXPECT_EQ(outcome.status, 1) << arguments;
        EXPECT_TRUE(outcome.errors.starts_with("nurva: no se puede escribir la salida: "))
            << outcome.errors;
    }
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

TEST_F(CommandLine, SaysWhyAFileCannotBeReadAsTheSystemDoes) {
    const std::string spanish = "env -u LC_ALL -u LC_MESSAGES LANG=C.UTF-8 LANGUAGE=es ";
    const Outcome outcome = support::run("ln -s loop loop; " + spanish + "cat loop; " + spanish +
                                         NURVA_PROGRAM " check loop");
    const std::string reason = outcome.errors.substr(outcome.errors.rfind(": "));
    EXPECT_EQ(outcome.output, "loop: rechazado (unreadable)" + reason);
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

/// A bundle that names another group than the host application's own, whose container is there too.
struct OtherGroup : CommandLine {
    OtherGroup() {
        std::filesystem::copy(NURVA_RESOURCES_FOLDER "/NurvaWidgets.appex", bundle,
                              std::filesystem::copy_options::recursive);
        std::string info = support::contentsOf(bundle / "Info.plist");
        info.insert(info.find("<dict>") + 6, "<key>GrupoDeApps</key><string>abc</string>");
        home.write("Other.appex/Info.plist", info);
        std::filesystem::create_directory(itsContainer);
    }
    Outcome nurva(const std::string& arguments) const {
        return CommandLine::nurva(arguments, "es_ES.UTF-8",
                                  "NURVA_BUNDLE='" + bundle.string() + "'");
    }

    std::filesystem::path bundle = home.path() / "Other.appex";
    std::filesystem::path itsContainer = home.path() / "group-containers/abc";
};

TEST_F(OtherGroup, ReadsTheSnapshotInTheContainerThatTheBundleNames) {
    json other = snapshot();
    other["perfil"] = "Cine";
    home.write("group-containers/abc/estado.json", other.dump());
    publish(snapshot());
    const Outcome outcome = nurva("timeline nurva.tuCuarto --now 804686460");
    ASSERT_EQ(outcome.status, 0) << outcome.errors;
    EXPECT_EQ(json::parse(outcome.output)["state"]["perfil"], "Cine");
}

TEST_F(OtherGroup, SendsTheRequestIntoTheContainerThatTheBundleNames) {
    EXPECT_EQ(nurva("perform AlternarEncendido").status, 0);
    EXPECT_EQ(support::contentsOf(itsContainer / "peticion.json"), R"({"alternarEncendido":{}})");
    EXPECT_FALSE(std::filesystem::exists(container() / "peticion.json"));
}

TEST_F(CommandLine, SendsNothingForAnActionThatIsNotWhole) {
    for (const char* arguments :
         {"Nada", "PonerVolumen", "PonerVolumen clave=a", "PonerVolumen clave=a nivel=medio",
          "PonerVolumen clave=a nivel=1 otro=2", "PonerVolumen clave=a clave=b nivel=1",
          "SilenciarApp clave=a silenciar=quizás", "AlternarEncendido x=1", "PonerPerfil p1",
          "PonerPerfil '[id=a]'", "PonerPerfil id=a '[]'", "PonerVolumen clave=a nivel=nan",
          "PonerVolumen clave=a nivel=inf", "PonerPerfil 'id=\xFF'"}) {
        const Outcome outcome = nurva(std::string("perform ") + arguments);
        EXPECT_EQ(outcome.status, 2) << arguments;
        EXPECT_TRUE(outcome.errors.starts_with("nurva: ")) << arguments;
    }
    EXPECT_FALSE(std::filesystem::exists(container() / "peticion.json"));
}

TEST_F(CommandLine, SaysWhyARequestCannotBeSent) {
    std::filesystem::remove_all(container());
    const Outcome outcome = nurva("perform AlternarEncendido");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.errors,
              "nurva: no existe el contenedor del grupo group.org.nurva.Nurva; abre Nurva una "
              "vez\n");
    EXPECT_EQ(nurva("perform PonerPerfil").status, 2) << "that comes first";
}

TEST_F(CommandLine, EndsWithAMessageWhateverGoesWrong) {
    const Outcome outcome = nurva(
        "render nurva.queEstaPuesto --format json --family-size 1.7e308x1.7e308 "
        "--now 804686460 --state " +
        example);
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.output, "");
    EXPECT_TRUE(outcome.errors.starts_with("nurva: ")) << outcome.errors;
}

TEST_F(CommandLine, StopsAtALevelThatCannotBeShownAndSaysSo) {
    json loud = snapshot();
    loud["apps"][0]["nivel"] = 1e300;
    const std::string state = " --format json --state " + file(loud.dump());
    const Outcome refused = nurva("render nurva.volumenPorApp --now 804686460" + state);
    EXPECT_EQ(refused.status, 1);
    EXPECT_EQ(refused.output, "");
    EXPECT_EQ(refused.errors, "nurva: no se puede dibujar: el nivel de " +
                                  loud["apps"][0]["nombre"].get<std::string>() +
                                  " es 1e+300, y eso no cabe en un tanto por ciento\n");
    EXPECT_EQ(nurva("render nurva.tuCuarto --now 804686460" + state).status, 0);
    EXPECT_EQ(nurva("render nurva.volumenPorApp --now 804688000" + state).status, 0) << "closed";
    loud["apps"][0]["silenciada"] = true;
    file(loud.dump());
    EXPECT_EQ(nurva("render nurva.volumenPorApp --now 804686460" + state).status, 0) << "muted";
}

}  // namespace

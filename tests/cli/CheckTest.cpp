#include "cli/CommandLine.hpp"

namespace {

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

TEST_F(CommandLine, RefusesTooMuchOnStandardInputAsItDoesInAFile) {
    const std::string large = file(std::string((std::size_t{2} << 20) + 1, ' '), "large.json");
    const json ofFile = json::parse(nurva("check --json " + large).output);
    const json ofInput = json::parse(nurva("check --json - <" + large).output);
    EXPECT_EQ(ofInput["kind"], "unreadable");
    EXPECT_EQ(ofInput["reason"], ofFile["reason"]);
    const Outcome drawn = nurva("timeline nurva.tuCuarto --state - <" + large);
    EXPECT_EQ(drawn.status, 0);
    EXPECT_EQ(json::parse(drawn.output)["state"], nullptr);
    EXPECT_NE(drawn.errors.find("unreadable"), std::string::npos) << drawn.errors;
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

TEST_F(CommandLine, NamesAFileThatIsNoUTF8AndGoesOn) {
    for (const std::string& name : {file("{}", "\xFF.json"), std::string("'\xFF.json'")}) {
        const Outcome outcome = nurva("check --json " + name + " " + example);
        EXPECT_EQ(outcome.status, 1) << outcome.errors;
        const std::size_t end = outcome.output.find('\n');
        const json refused = json::parse(outcome.output.substr(0, end));
        EXPECT_TRUE(refused["file"].get<std::string>().ends_with("\uFFFD.json")) << refused;
        EXPECT_TRUE(json::parse(outcome.output.substr(end))["ok"]);
    }
}

TEST_F(CommandLine, TakesTheNameOfAFileAsItStands) {
    for (const std::string name : {"[x]", "[]", "[a,b]", "{x}", "a,b", "-x", "render"}) {
        const Outcome outcome =
            support::run("cp " + example + " './" + name + "' && " NURVA_PROGRAM " check --json " +
                         example + " -- '" + name + "'");
        EXPECT_EQ(outcome.status, 0) << outcome.output << outcome.errors;
        EXPECT_NE(outcome.output.find("\"file\":\"" + name + "\""), std::string::npos)
            << outcome.output;
    }
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

}  // namespace

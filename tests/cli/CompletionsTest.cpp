#include "cli/CommandLine.hpp"

#include <sstream>
#include <string>
#include <vector>

namespace {

/// What bash offers for the last of the words of a command line.
std::vector<std::string> offered(const std::string& words) {
    const Outcome outcome = support::run(
        "LANG=en_US.UTF-8 " NURVA_PROGRAM
        " completions bash >script && bash -c 'touch here.json \"there it is.json\"; . ./script; "
        "COMP_WORDS=(" +
        words +
        "); COMP_CWORD=$((${#COMP_WORDS[@]} - 1)); _nurva; printf \"%s\\n\" \"${COMPREPLY[@]}\"'");
    EXPECT_EQ(outcome.errors, "");
    std::istringstream lines(outcome.output);
    std::vector<std::string> all;
    for (std::string line; std::getline(lines, line);)
        all.push_back(line);
    return all;
}

using Words = std::vector<std::string>;

TEST(Completions, OfferTheCommandsAndWhatEachTakes) {
    EXPECT_EQ(offered("nurva re"), (Words{"render", "reload"}));
    EXPECT_EQ(offered("nurva render --sc"), Words{"--scale"});
    EXPECT_EQ(offered("nurva render nurva.t"), Words{"nurva.tuCuarto"});
    EXPECT_EQ(offered("nurva perform Poner"), (Words{"PonerVolumen", "PonerPerfil"}));
    EXPECT_EQ(offered("nurva desktop --g"), Words{"--gallery"});
}

TEST(Completions, OfferTheValuesOfAnOption) {
    EXPECT_EQ(offered("nurva render --format \"\""), (Words{"png", "svg", "json"}));
    EXPECT_EQ(offered("nurva host --scene s"), (Words{"solo-mirar", "sin-medir"}));
    EXPECT_EQ(offered("nurva render --state h"), Words{"here.json"});
    EXPECT_EQ(offered("nurva check h"), Words{"here.json"});
    EXPECT_EQ(offered("nurva check t"), Words{"there it is.json"});
}

TEST_F(CommandLine, SpeaksToEachShellInTheUsersLanguage) {
    for (const std::string shell : {"bash", "zsh", "fish"}) {
        const Outcome outcome = nurva("completions " + shell);
        EXPECT_EQ(outcome.status, 0);
        EXPECT_NE(outcome.output.find("nurva.queEstaPuesto"), std::string::npos) << shell;
    }
    EXPECT_NE(nurva("completions zsh").output.find("'render:Dibuja un widget'"), std::string::npos);
    EXPECT_NE(nurva("completions fish", "en_US.UTF-8").output.find("-d 'Draw a widget'"),
              std::string::npos);
    EXPECT_EQ(nurva("completions tcsh").status, 2);
}

TEST_F(CommandLine, WritesItsCommandsForTheManual) {
    const Outcome outcome = nurva("manual", "en_US.UTF-8");
    EXPECT_EQ(outcome.status, 0);
    EXPECT_NE(outcome.output.find(".SS nurva render kind\n"), std::string::npos);
    EXPECT_NE(outcome.output.find("\\fB\\-\\-format\\fR \\fITEXT\\fR\n"), std::string::npos);
    EXPECT_NE(outcome.output.find(".SS nurva check files ...\n"), std::string::npos);
    EXPECT_NE(outcome.output.find("\\fB\\-\\-now\\fR \\fINUMBER\\fR\n"), std::string::npos);
    EXPECT_EQ(nurva("--help").output.find("manual"), std::string::npos);
    EXPECT_EQ(nurva("manual --help", "en_US.UTF-8").output.find("Opciones"), std::string::npos);
}

}  // namespace

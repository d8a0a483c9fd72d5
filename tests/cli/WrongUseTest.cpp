#include "cli/CommandLine.hpp"

#include <string>
#include <vector>

namespace {

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
                                  "render nurva.queEstaPuesto --scale ''",
                                  "render nurva.queEstaPuesto --now ''",
                                  "render nurva.queEstaPuesto --now=",
                                  "render nurva.queEstaPuesto --state ''",
                                  "render nurva.queEstaPuesto --family-size ''",
                                  "render nurva.queEstaPuesto --format ''",
                                  "render nurva.queEstaPuesto --output ''",
                                  "render nurva.queEstaPuesto -o ''",
                                  "render nurva.queEstaPuesto --scale 1e-9",
                                  "timeline nurva.nada",
                                  "timeline nurva.queEstaPuesto --now ''",
                                  "timeline nurva.queEstaPuesto --state ''",
                                  "placeholder nurva.queEstaPuesto --now ''",
                                  "desktop --scale ''",
                                  "desktop --scale grande",
                                  "desktop --extension ''",
                                  "host --demo --scene ''",
                                  "reload ''",
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
        {"timeline nurva.tuCuarto --now ''", "no sirve: --now '' (La hora"},
        {"render nurva.tuCuarto --scale 1e-9", "la imagen sería demasiado pequeña\n"},
        {"render nurva.tuCuarto --format svg --scale 1e-9", "la imagen sería demasiado pequeña\n"},
        {"render nurva.tuCuarto --scale 1e9", "la imagen sería demasiado grande\n"},
        {"completions ksh", "no sirve: shell ksh (bash, zsh o fish)\n"},
        {"check-request",
         "falta algo en la orden: files\n       ayuda: nurva check-request --help"},
    };
    for (const auto& [arguments, said] : cases)
        EXPECT_NE(nurva(arguments).errors.find(said), std::string::npos)
            << arguments << ": " << nurva(arguments).errors;
}

TEST_F(CommandLine, SpeaksOfFaultsInTheUsersLanguage) {
    EXPECT_NE(nurva("render nurva.nada", "en_GB.UTF-8").errors.find("there is no widget"),
              std::string::npos);
    EXPECT_NE(nurva("render nurva.nada", "es_MX.UTF-8").errors.find("no hay ningún widget"),
              std::string::npos);
}

TEST_F(CommandLine, NamesTheKindsThereAre) {
    EXPECT_NE(nurva("render nurva.nada").errors.find("nurva.queEstaPuesto"), std::string::npos);
}

}  // namespace

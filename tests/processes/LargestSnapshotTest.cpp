#include "platform/foundation/files/ReadFile.hpp"
#include "platform/foundation/files/WriteFile.hpp"
#include "platform/foundation/json/JSONEncoder.hpp"
#include "processes/Stage.hpp"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>

namespace {

constexpr std::size_t besideTheList = 4000;  // bytes of a snapshot

/// How many such members make a snapshot of the largest size.
template <class Member>
std::size_t most(const Member& member) {
    const std::size_t bytes = foundation::JSONEncoder().encode(member).size() + 1;
    return (foundation::maximumFileBytes - besideTheList) / bytes;
}

/// A card of the extension, as confined as it is, that shows this snapshot.
void expectShown(const char* kind, const nurva::EstadoParaWidgets& estado, const char* label) {
    OneCard card(kind);
    card.stage.publish(estado);
    const auto size = std::filesystem::file_size(card.stage.container() / "estado.json");
    EXPECT_LE(size, foundation::maximumFileBytes);
    EXPECT_GE(size, foundation::maximumFileBytes / 100 * 95);
    EXPECT_TRUE(soon([&] { return card.viewer.shows(label); }));
}

// Of more rows than have room those in the middle are seen, whichever they are.

TEST(LargestSnapshot, IsShownWithAllItsApplications) {
    nurva::EstadoParaWidgets estado = music();
    const nurva::AppCorta app{.id = "1234567", .nombre = "A", .nivel = 0};
    estado.apps.assign(most(app), app);
    for (std::size_t i = 0; i < estado.apps.size(); ++i)
        estado.apps[i].id = std::to_string(1'000'000 + i);
    expectShown("nurva.volumenPorApp", estado, "A");
}

TEST(LargestSnapshot, IsShownWithItsWholeCurve) {
    nurva::EstadoParaWidgets estado = music();
    estado.curva.assign((foundation::maximumFileBytes - besideTheList) / 2, 1);  // 1 and a comma
    estado.perfil = "Todo igual";
    expectShown("nurva.queEstaPuesto", estado, "Todo igual");
}

/// Megabytes that a process has had in memory at most.
double peakMemory(pid_t process) {
    std::ifstream status("/proc/" + std::to_string(process) + "/status");
    for (std::string word; status >> word;)
        if (word == "VmHWM:" && status >> word)
            return std::stod(word) / 1024;
    return 0;
}

TEST(LargestSnapshot, IsRefusedAsCheaplyAsItIsShown) {
    nurva::EstadoParaWidgets estado = music();
    estado.curva.assign((foundation::maximumFileBytes - besideTheList) / 2, 1);
    std::string text = foundation::JSONEncoder().encode(estado);
    text.replace(text.rfind("\"cuando\""), 8, "\"cuanto\"");
    OneCard card("nurva.queEstaPuesto");
    const pid_t process = extensionProcess();
    foundation::writeFileAtomically(text, card.stage.container() / "estado.json");
    EXPECT_TRUE(
        soon([&] { return card.viewer.shows("Abre Nurva una vez y este widget se llena."); }));
    EXPECT_EQ(extensionProcess(), process);
    const double peak = peakMemory(process);
    EXPECT_GT(peak, 1);
    if (!NURVA_SANITIZED) {
        EXPECT_LT(peak, 60) << "megabytes";
    }
}

TEST(LargestSnapshot, IsShownWithAllItsProfiles) {
    nurva::EstadoParaWidgets estado = music();
    const nurva::PerfilCorto perfil{.id = "", .nombre = "P"};
    estado.perfiles.assign(most(perfil), perfil);
    expectShown("nurva.ponerUnPerfil", estado, "P");
}

}  // namespace

#include "vistas/CaraDePrueba.hpp"
#include "vistas/Rotulo.hpp"
#include "vistas/WO.hpp"

#include <gtest/gtest.h>

namespace nurva {
namespace {

views::DrawText textoDe(const char* texto) {
    const support::World mundo;
    return support::all<views::DrawText>(escena(mundo, Rotulo{.texto = texto})).at(0);
}

TEST(Rotulo, IsSmallSemiboldAndSpacedOut) {
    const views::DrawText texto = textoDe("Nurva");
    EXPECT_EQ(texto.font, (views::Font{9, views::FontWeight::semibold}));
    EXPECT_EQ(texto.tracking, 0.9);
    EXPECT_EQ(texto.color, WO::texto3);
    EXPECT_EQ(texto.frame.size(), (views::Size{5 * (4.5 + 0.9), 11}));
}

TEST(Rotulo, ShowsCapitalsWithTheirAccents) {
    EXPECT_EQ(textoDe("áéñü").text, "ÁÉÑÜ");
    EXPECT_EQ(textoDe("straße").text, "STRASSE");
    EXPECT_EQ(textoDe("YA ESTÁ").text, "YA ESTÁ");
}

TEST(Rotulo, IsNoLocalizationKey) {
    const support::World ingles(support::World::bundleIn({"en"}));
    EXPECT_EQ(support::texts(escena(ingles, Rotulo{.texto = "mudo"})),
              std::vector<std::string>{"MUDO"});
}

TEST(Rotulo, HasNoWidthWithoutAText) {
    const views::DrawText texto = textoDe("");
    EXPECT_EQ(texto.text, "");
    EXPECT_EQ(texto.frame.width, 0);
    EXPECT_EQ(texto.frame.height, 11);
}

}  // namespace
}  // namespace nurva

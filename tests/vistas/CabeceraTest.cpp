#include "platform/views/text/Text.hpp"
#include "vistas/Cabecera.hpp"
#include "vistas/CaraDePrueba.hpp"

#include <gtest/gtest.h>

#include <string>

namespace nurva {
namespace {

using support::textReading;

views::Scene cabecera(const std::string& nota) {
    const support::World mundo;
    const views::BuildScope construccion(mundo.environment);
    return escena(mundo, Cabecera{.rotulo = "Tu cuarto",
                                  .alFinal = views::Text(nota).font({.size = 10}).lineLimit(1)});
}

TEST(Cabecera, PutsLabelAndNoteAtItsTwoEnds) {
    const auto escena = cabecera("hoy");
    EXPECT_EQ(textReading(escena, "TU CUARTO").frame.x, 12);
    EXPECT_EQ(textReading(escena, "hoy").frame.right(), 158);
    EXPECT_EQ(textReading(escena, "hoy").frame.y, 12 + (146 - 13) / 2.0);
}

TEST(Cabecera, CutsALongNoteBehindTheLabel) {
    const auto escena = cabecera(std::string(100, 'n'));
    const auto nota = textReading(escena, std::string(100, 'n'));
    EXPECT_TRUE(nota.lines.at(0).ends_with("…"));
    // Five before the room between them, which has shrunk to nothing, and five behind it.
    EXPECT_GE(nota.frame.x, textReading(escena, "TU CUARTO").frame.right() + 10);
    EXPECT_LE(nota.frame.right(), 158);
}

}  // namespace
}  // namespace nurva

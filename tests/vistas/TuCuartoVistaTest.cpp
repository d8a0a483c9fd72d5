#include "support/TemporaryFolder.hpp"
#include "vistas/CaraDePrueba.hpp"
#include "vistas/TuCuartoVista.hpp"
#include "vistas/WO.hpp"

#include <gtest/gtest.h>

namespace nurva {
namespace {

using support::textReading;
using views::Font;
using views::Rect;
using Textos = std::vector<std::string>;

struct TuCuartoVistaTest : testing::Test {
    TuCuartoVistaTest() {
        estado->cuartoAhora = 2.4;
        estado->cuartoAntes = 6.3;
        estado->salidasSinMedir = 3;
    }
    views::Scene cara(const support::World& mundo) const {
        return escena(mundo, TuCuartoVista{.e = estado});
    }
    views::Scene cara() const { return cara(espanol); }

    support::World espanol;
    std::optional<EstadoParaWidgets> estado = estadoDeAhora();
};

TEST_F(TuCuartoVistaTest, StandsWhereItsLayoutSays) {
    const auto escena = cara();
    EXPECT_EQ(textReading(escena, "TU CUARTO").frame.x, 12);
    EXPECT_EQ(textReading(escena, "TU CUARTO").frame.y, 12 + 1);
    EXPECT_EQ(textReading(escena, "hace 3 días").frame.right(), 158);
    EXPECT_EQ(textReading(escena, "Audífonos").frame, (Rect{12, 12 + 13 + 10, 56.5, 15}));
    const auto cuenta = textReading(escena, "3 salidas sin medir").frame;
    EXPECT_EQ(cuenta.bottom(), 158);
    const auto antes = textReading(escena, "antes ±6.3").frame;
    EXPECT_EQ(antes.bottom(), cuenta.y - 8);
    const auto valor = textReading(escena, "±2,4").frame;
    EXPECT_EQ(valor.bottom(), antes.y);
    const auto unidad = textReading(escena, "dB").frame;
    EXPECT_EQ(unidad.x, valor.right() + 5);
    EXPECT_EQ(unidad.y + 11, valor.y + 25);
}

TEST_F(TuCuartoVistaTest, DressesItsTextsAsItsLayoutSays) {
    estado->acento = 0x0000FF;
    const auto escena = cara();
    EXPECT_EQ(textReading(escena, "hace 3 días").font, (Font{10, views::regular}));
    EXPECT_EQ(textReading(escena, "hace 3 días").color, WO::texto3);
    EXPECT_EQ(textReading(escena, "Audífonos").font, (Font{12.5, views::semibold}));
    EXPECT_EQ(textReading(escena, "Audífonos").color, WO::texto);
    EXPECT_EQ(textReading(escena, "±2,4").font,
              (Font{26, views::medium, views::FontDesign::monospaced}));
    EXPECT_EQ(textReading(escena, "±2,4").color, (views::Color{0, 0, 1}));
    EXPECT_EQ(textReading(escena, "dB").font, (Font{11, views::regular}));
    EXPECT_EQ(textReading(escena, "dB").color, WO::texto2);
    EXPECT_EQ(textReading(escena, "antes ±6.3").font, (Font{10.5, views::regular}));
    EXPECT_EQ(textReading(escena, "antes ±6.3").color, WO::texto3);
    EXPECT_EQ(textReading(escena, "3 salidas sin medir").font, (Font{10, views::regular}));
    EXPECT_EQ(textReading(escena, "3 salidas sin medir").color, WO::texto3);
}

TEST_F(TuCuartoVistaTest, LeavesOutTheValueBeforeWhereThereIsNone) {
    estado->cuartoAhora = 3;
    estado->cuartoAntes.reset();
    EXPECT_EQ(support::texts(cara()), (Textos{"TU CUARTO", "hace 3 días", "Audífonos", "±3,0", "dB",
                                              "3 salidas sin medir"}));
    const support::World ingles(support::World::spanishBundle(), "en_US");
    EXPECT_EQ(textReading(cara(ingles), "±3.0").text, "±3.0");
}

TEST_F(TuCuartoVistaTest, WritesTheTwoValuesInTheirOwnWays) {
    estado->cuartoAhora = 0.15;
    estado->cuartoAntes = 0.15;
    EXPECT_EQ(textReading(cara(), "±0,2").text, "±0,2");
    EXPECT_EQ(textReading(cara(), "antes ±0.1").text, "antes ±0.1");
    estado->cuartoAhora = -2.4;
    EXPECT_EQ(textReading(cara(), "±-2,4").text, "±-2,4");
    const support::World egipcio(support::World::spanishBundle(), "ar_EG");
    EXPECT_EQ(textReading(cara(egipcio), "antes ±0.1").text, "antes ±0.1");
    EXPECT_NE(textReading(cara(egipcio), "±-2.4").text, "±-2.4");
}

TEST_F(TuCuartoVistaTest, SaysThatTheOutputIsNotMeasured) {
    estado->cuartoAhora.reset();
    estado->cuartoAntes = 5;
    estado->salidaMedida = true;
    const auto escena = cara();
    EXPECT_EQ(support::texts(escena),
              (Textos{"TU CUARTO", "hace 3 días", "Audífonos", "Sin medir",
                      "mídela y sabrás qué corrige", "3 salidas sin medir"}));
    EXPECT_EQ(textReading(escena, "Sin medir").font, (Font{17, views::semibold}));
    EXPECT_EQ(textReading(escena, "Sin medir").color, WO::ambar);
    EXPECT_EQ(textReading(escena, "mídela y sabrás qué corrige").font,
              (Font{10.5, views::regular}));
    EXPECT_EQ(textReading(escena, "mídela y sabrás qué corrige").color, WO::texto3);
}

TEST_F(TuCuartoVistaTest, CountsOnlyWhatIsLeftToMeasure) {
    for (const std::int64_t ninguna : {std::int64_t{0}, std::int64_t{-1}, INT64_MIN}) {
        estado->salidasSinMedir = ninguna;
        EXPECT_EQ(support::texts(cara()).back(), "antes ±6.3") << ninguna;
    }
    estado->salidasSinMedir = 1;
    EXPECT_EQ(support::texts(cara()).back(), "1 salidas sin medir");
}

TEST_F(TuCuartoVistaTest, LeavesTheValueRowToTheSystemsLanguage) {
    estado->idioma = "en";
    const auto textos = support::texts(cara());
    EXPECT_EQ(textos, (Textos{"YOUR ROOM", "hace 3 días", "Audífonos", "±2,4", "dB", "before ±6.3",
                              "3 outputs not measured"}));
    estado->salidasSinMedir = 1;
    EXPECT_EQ(support::texts(cara()).back(), "1 output not measured");
}

TEST_F(TuCuartoVistaTest, TakesOnlyTheValueRowFromTheSystemsLanguage) {
    const support::TemporaryFolder carpeta;
    for (const std::string idioma : {"es", "en"}) {
        std::string tabla;
        for (const std::string clave :
             {"Tu cuarto", "±%.1f", "dB", "antes ±%@", "%lld salidas sin medir", "Sin medir",
              "mídela y sabrás qué corrige"})
            tabla += "\"" + clave + "\" = \"" + clave + " (" + idioma + ")\";\n";
        carpeta.write(idioma + ".lproj/Localizable.strings", tabla);
    }
    const support::World deSistemaEspanol(foundation::Bundle::localized(carpeta.path(), {"es"}));
    estado->idioma = "en";
    EXPECT_EQ(support::texts(cara(deSistemaEspanol)),
              (Textos{"TU CUARTO (EN)", "hace 3 días", "Audífonos", "±2,4 (es)", "dB (es)",
                      "antes ±6.3 (en)", "3 salidas sin medir (en)"}));
    estado->cuartoAhora.reset();
    EXPECT_EQ(support::texts(cara(deSistemaEspanol)),
              (Textos{"TU CUARTO (EN)", "hace 3 días", "Audífonos", "Sin medir (en)",
                      "mídela y sabrás qué corrige (en)", "3 salidas sin medir (en)"}));
}

TEST_F(TuCuartoVistaTest, WrapsALongOutputAndCutsALongAge) {
    estado->salida = "Los audífonos inalámbricos nuevos de Marta en la sala de arriba";
    estado->medidoHace = "hace muchísimo más tiempo del que cabe aquí";
    const auto escena = cara();
    EXPECT_EQ(textReading(escena, estado->salida).lines.size(), 2u);
    EXPECT_TRUE(textReading(escena, estado->salida).lines.back().ends_with("…"));
    EXPECT_EQ(textReading(escena, estado->medidoHace).lines.size(), 1u);
    EXPECT_TRUE(textReading(escena, estado->medidoHace).lines[0].ends_with("…"));
}

TEST_F(TuCuartoVistaTest, HasNothingToPress) {
    EXPECT_TRUE(cara().controls.empty());
}

TEST_F(TuCuartoVistaTest, IsClosedAfterNineHundredSeconds) {
    estado->cuando = support::noon.addingTimeInterval(-899.9);
    EXPECT_EQ(textReading(cara(), "±2,4").text, "±2,4");
    estado->cuando = support::noon.addingTimeInterval(-900);
    EXPECT_EQ(support::texts(cara()),
              (Textos{"Nurva", "Nurva está cerrado. Ábrelo y este widget se pone al día."}));
    estado.reset();
    EXPECT_EQ(support::texts(cara()),
              (Textos{"Nurva", "Abre Nurva una vez y este widget se llena."}));
    EXPECT_EQ(WO::acentoHex, 0x5CE49Au);
}

TEST_F(TuCuartoVistaTest, KeepsNeitherLanguageNorAccentOfASnapshotThatIsGone) {
    estado->idioma = "en";
    estado->acento = 0xFF0000;
    EXPECT_EQ(support::texts(cara()).front(), "YOUR ROOM");
    EXPECT_EQ(WO::acentoHex, 0xFF0000u);
    estado.reset();
    EXPECT_EQ(support::texts(cara()),
              (Textos{"Nurva", "Abre Nurva una vez y este widget se llena."}));
    EXPECT_EQ(WO::acentoHex, 0x5CE49Au);
}

}  // namespace
}  // namespace nurva

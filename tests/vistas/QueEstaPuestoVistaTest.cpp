#include "vistas/CaraDePrueba.hpp"
#include "vistas/QueEstaPuestoVista.hpp"
#include "vistas/WO.hpp"

#include <gtest/gtest.h>

#include <limits>

namespace nurva {
namespace {

using support::textReading;
using views::Color;
using views::Font;
using views::Rect;

constexpr const char* nuncaAbierto = "Abre Nurva una vez y este widget se llena.";
constexpr const char* yaCerrado = "Nurva está cerrado. Ábrelo y este widget se pone al día.";

struct QueEstaPuestoVistaTest : testing::Test {
    views::Scene cara() const { return escena(mundo, QueEstaPuestoVista{.e = estado}); }
    views::Scene caraDeEdad(double segundos) {
        estado->cuando = support::noon.addingTimeInterval(-segundos);
        return cara();
    }
    static bool estaCerrada(const views::Scene& escena) {
        return support::texts(escena) == std::vector<std::string>{"Nurva", yaCerrado};
    }

    support::World mundo;
    std::optional<EstadoParaWidgets> estado = estadoDeAhora();
};

TEST_F(QueEstaPuestoVistaTest, StandsWhereItsLayoutSays) {
    const auto escena = cara();
    EXPECT_EQ(textReading(escena, "NURVA").frame, (Rect{12, 12, 27, 11}));
    const auto punto = support::all<views::FillShape>(escena).at(0);
    EXPECT_EQ(punto.shape, views::Shape(views::Circle{}));
    EXPECT_EQ(punto.frame, (Rect{152, 14.5, 6, 6}));
    const auto linea = support::all<views::StrokePath>(escena).at(0);
    EXPECT_EQ(linea.points.front(), (views::Point{12, 33 + 22}));
    EXPECT_EQ(linea.points.back(), (views::Point{158, 33 + 44}));
    EXPECT_EQ(textReading(escena, "Voz").frame, (Rect{12, 158 - 17 - 14 - 23, 28.5, 23}));
    EXPECT_EQ(textReading(escena, "Suena un pódcast").frame, (Rect{12, 158 - 17 - 14, 88, 14}));
    EXPECT_EQ(textReading(escena, "Audífonos").frame, (Rect{12, 158 - 13, 47.5, 13}));
}

TEST_F(QueEstaPuestoVistaTest, DressesItsTextsAsItsLayoutSays) {
    const auto escena = cara();
    EXPECT_EQ(textReading(escena, "NURVA").font, (Font{9, views::semibold}));
    EXPECT_EQ(textReading(escena, "Voz").font, (Font{19, views::semibold}));
    EXPECT_EQ(textReading(escena, "Voz").color, WO::texto);
    EXPECT_EQ(textReading(escena, "Suena un pódcast").font, (Font{11, views::regular}));
    EXPECT_EQ(textReading(escena, "Suena un pódcast").color, WO::texto2);
    EXPECT_EQ(textReading(escena, "Audífonos").font, (Font{10.5, views::regular}));
    EXPECT_EQ(textReading(escena, "Audífonos").color, WO::texto3);
    EXPECT_EQ(escena.background, WO::fondo);
}

TEST_F(QueEstaPuestoVistaTest, DrawsTheCurveInTheAccentOverItsTint) {
    estado->acento = 0xFF0000;
    const auto escena = cara();
    EXPECT_EQ(support::all<views::FillPath>(escena).at(0).color, (Color{1, 0, 0, 0.1}));
    const auto linea = support::all<views::StrokePath>(escena).at(0);
    EXPECT_EQ(linea.color, (Color{1, 0, 0, 1}));
    EXPECT_EQ(linea.style.lineWidth, 2.2);
}

TEST_F(QueEstaPuestoVistaTest, TakesBlackForAnAccentLikeAnyOther) {
    estado->acento = 0;
    const auto escena = cara();
    EXPECT_EQ(support::all<views::FillShape>(escena).at(0).color, (Color{0, 0, 0, 1}));
    EXPECT_EQ(support::all<views::FillPath>(escena).at(0).color, (Color{0, 0, 0, 0.1}));
    EXPECT_EQ(support::all<views::StrokePath>(escena).at(0).color, (Color{0, 0, 0, 1}));
}

TEST_F(QueEstaPuestoVistaTest, LightsTheDotWhileTheEqualizerIsOn) {
    estado->acento = 0xFF0000;
    EXPECT_EQ(support::all<views::FillShape>(cara()).at(0).color, (Color{1, 0, 0, 1}));
    estado->prendido = false;
    EXPECT_EQ(support::all<views::FillShape>(cara()).at(0).color, WO::texto3);
}

TEST_F(QueEstaPuestoVistaTest, HasNothingToPress) {
    EXPECT_TRUE(cara().controls.empty());
}

TEST_F(QueEstaPuestoVistaTest, LeavesOutTheReasonWhereThereIsNone) {
    estado->razon = "";
    const auto escena = cara();
    EXPECT_EQ(support::texts(escena), (std::vector<std::string>{"NURVA", "Voz", "Audífonos"}));
    EXPECT_EQ(textReading(escena, "Voz").frame.bottom(), 158 - 17);
}

TEST_F(QueEstaPuestoVistaTest, WrapsALongReasonOnceAndThenCutsIt) {
    estado->razon = "Suena un pódcast largo en la aplicación de los pódcasts largos de siempre";
    const auto razon = textReading(cara(), estado->razon);
    EXPECT_EQ(razon.lines.size(), 2u);
    EXPECT_EQ(razon.frame.height, 28);
    EXPECT_TRUE(razon.lines.back().ends_with("…"));
    EXPECT_TRUE(estado->razon.starts_with(razon.lines.front()));
}

TEST_F(QueEstaPuestoVistaTest, CutsALongProfileAndALongOutputToOneLine) {
    estado->perfil = "Un perfil con un nombre larguísimo";
    estado->salida = "Unos audífonos con un nombre larguísimo";
    const auto escena = cara();
    for (const auto& texto :
         {textReading(escena, estado->perfil), textReading(escena, estado->salida)}) {
        EXPECT_EQ(texto.lines.size(), 1u);
        EXPECT_TRUE(texto.lines.front().ends_with("…")) << texto.lines.front();
        EXPECT_LE(texto.frame.width, 146);
    }
}

TEST_F(QueEstaPuestoVistaTest, KeepsTheLinesOfEmptyTexts) {
    const auto lleno = textReading(cara(), "Suena un pódcast").frame.y;
    estado->perfil = "";
    estado->salida = "";
    const auto escena = cara();
    EXPECT_EQ(support::texts(escena),
              (std::vector<std::string>{"NURVA", "", "Suena un pódcast", ""}));
    EXPECT_EQ(textReading(escena, "Suena un pódcast").frame.y, lleno);
}

TEST_F(QueEstaPuestoVistaTest, KeepsTheRoomOfAnEmptyCurve) {
    estado->razon = "Una razón que ocupa dos líneas enteras";
    auto sinCurva = estado;
    sinCurva->curva = {};
    // The spacer below takes up what is missing, but on a card too low for all it would show.
    for (double alto = 100; alto <= 200; alto += 0.5) {
        const auto cara = escena(mundo, QueEstaPuestoVista{.e = sinCurva}, {170, alto});
        EXPECT_TRUE(support::all<views::StrokePath>(cara).empty());
        EXPECT_TRUE(support::all<views::FillPath>(cara).empty());
        EXPECT_EQ(support::all<views::DrawText>(cara),
                  support::all<views::DrawText>(
                      escena(mundo, QueEstaPuestoVista{.e = estado}, {170, alto})))
            << alto;
    }
    // 11 + 10 + 44 + 6 + 23 + 14 + 17 in 106 points; the reason gives one of its lines away.
    const auto baja = escena(mundo, QueEstaPuestoVista{.e = sinCurva}, {170, 130});
    EXPECT_EQ(textReading(baja, "NURVA").frame.y, 12 + (106 - 125) / 2.0);
}

TEST_F(QueEstaPuestoVistaTest, ShowsTextsOfTheHostVerbatim) {
    const support::World ingles(support::World::bundleIn({"en"}));
    estado->idioma = "en";
    estado->perfil = "mudo";
    estado->razon = "Sin medir";
    estado->salida = "%lld sonando";
    EXPECT_EQ(support::texts(escena(ingles, QueEstaPuestoVista{.e = estado})),
              (std::vector<std::string>{"NURVA", "mudo", "Sin medir", "%lld sonando"}));
}

TEST_F(QueEstaPuestoVistaTest, IsCurrentUntilItIsNineHundredSecondsOld) {
    EXPECT_FALSE(estaCerrada(caraDeEdad(0)));
    EXPECT_FALSE(estaCerrada(caraDeEdad(899)));
    EXPECT_FALSE(estaCerrada(caraDeEdad(899.9)));
    EXPECT_TRUE(estaCerrada(caraDeEdad(900)));
    EXPECT_TRUE(estaCerrada(caraDeEdad(1e9)));
}

TEST_F(QueEstaPuestoVistaTest, IsCurrentInTheFuture) {
    EXPECT_FALSE(estaCerrada(caraDeEdad(-1)));
    EXPECT_FALSE(estaCerrada(caraDeEdad(-1e12)));
}

TEST_F(QueEstaPuestoVistaTest, IsClosedWhereItsAgeIsNoNumber) {
    EXPECT_TRUE(estaCerrada(caraDeEdad(std::numeric_limits<double>::quiet_NaN())));
}

TEST_F(QueEstaPuestoVistaTest, KeepsTheSnapshotsAccentWhenItIsClosed) {
    estado->acento = 0x112233;
    caraDeEdad(900);
    EXPECT_EQ(WO::acentoHex, 0x112233u);
}

TEST_F(QueEstaPuestoVistaTest, AsksToOpenTheHostWithoutASnapshot) {
    estado->acento = 0xFF0000;
    cara();
    estado.reset();
    const auto escena = cara();
    EXPECT_EQ(support::texts(escena), (std::vector<std::string>{"Nurva", nuncaAbierto}));
    EXPECT_EQ(WO::acentoHex, 0x5CE49Au);
    EXPECT_EQ(escena.background, WO::fondo);
}

TEST_F(QueEstaPuestoVistaTest, ReadsTheClockOnceWhereThereIsASnapshot) {
    cara();
    EXPECT_EQ(mundo.clock.reads(), 1u);
    estado.reset();
    cara();
    EXPECT_EQ(mundo.clock.reads(), 1u);
}

TEST_F(QueEstaPuestoVistaTest, SpeaksItsTextsInOrder) {
    std::vector<std::string> dichos;
    for (const auto& elemento : cara().accessibility) {
        EXPECT_EQ(elemento.role, views::AccessibilityRole::text);
        dichos.push_back(elemento.label);
    }
    EXPECT_EQ(dichos, (std::vector<std::string>{"NURVA", "Voz", "Suena un pódcast", "Audífonos"}));
}

TEST_F(QueEstaPuestoVistaTest, KeepsItsPartsApartOnEveryCard) {
    for (double lado = 170; lado <= 400; lado += 0.5) {
        const auto textos = support::all<views::DrawText>(
            escena(mundo, QueEstaPuestoVista{.e = estado}, {lado, lado}));
        for (std::size_t i = 1; i < textos.size(); ++i)
            EXPECT_GE(textos[i].frame.y, textos[i - 1].frame.bottom()) << lado;
    }
}

}  // namespace
}  // namespace nurva

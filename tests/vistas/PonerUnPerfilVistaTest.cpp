#include "vistas/CaraDePrueba.hpp"
#include "vistas/PonerUnPerfilVista.hpp"
#include "vistas/WO.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>

namespace nurva {
namespace {

using support::controlLabelled;
using support::textReading;
using views::Font;
using views::Rect;

PerfilCorto perfil(std::string id, std::string nombre, bool puesto = false) {
    return {std::move(id), std::move(nombre), {0, 12, -12}, puesto};
}

struct PonerUnPerfilVistaTest : testing::Test {
    PonerUnPerfilVistaTest() {
        estado->perfiles = {perfil("p1", "Música"), perfil("p2", "Voz", true), perfil("p3", "Cine"),
                            perfil("p4", "Noche")};
    }
    views::Scene cara() const { return escena(mundo, PonerUnPerfilVista{.e = estado}, mediana); }

    static bool hayRegla(const views::Scene& escena, const Rect& donde) {
        const auto partes = support::all<views::FillShape>(escena);
        return std::any_of(partes.begin(), partes.end(), [&](const auto& parte) {
            return parte.frame == donde && parte.color == WO::filete &&
                   std::holds_alternative<views::Rectangle>(parte.shape);
        });
    }

    support::World mundo;
    std::optional<EstadoParaWidgets> estado = estadoDeAhora();
};

TEST_F(PonerUnPerfilVistaTest, StandsWhereItsLayoutSays) {
    const auto escena = cara();
    EXPECT_EQ(textReading(escena, "PONER UN PERFIL").frame.y, 12 + 1);
    EXPECT_EQ(textReading(escena, "ahora: Voz").frame.right(), 352);
    // Four tiles of 44 points below the header, sharing 340 points less three gaps of 8.
    for (std::size_t i = 0; i < 4; ++i)
        EXPECT_EQ(escena.controls[i].frame,
                  (Rect{12 + static_cast<double>(i) * (79 + 8), 12 + 13 + 12, 79, 44}));
    const auto& pastilla = escena.controls.at(4);
    EXPECT_EQ(pastilla.frame.x, 12);
    EXPECT_EQ(pastilla.frame.bottom(), 158);
    EXPECT_EQ(pastilla.frame.height, 14 + 2 * 6);
    EXPECT_EQ(pastilla.frame.width, 12 + 7 + 6 + 21 * 5.75 + 0.25 + 12);
    const auto nota = textReading(escena, "se aplica sin abrir Nurva").frame;
    EXPECT_EQ(nota.right(), 352);
    EXPECT_EQ(nota.y + nota.height / 2, pastilla.frame.y + pastilla.frame.height / 2);
    EXPECT_TRUE(hayRegla(escena, {12, pastilla.frame.y - 10 - 1, 340, 1}));
}

TEST_F(PonerUnPerfilVistaTest, PutsCurveAndNameIntoTheMiddleOfATile) {
    const auto escena = cara();
    const auto linea = support::all<views::StrokePath>(escena).at(0);
    const Rect loseta = escena.controls[0].frame;
    const double izquierda = loseta.x + (79 - 34) / 2.0;
    const double arriba = loseta.y + (44 - (10 + 3 + 14)) / 2.0;
    EXPECT_EQ(linea.points, (std::vector<views::Point>{{izquierda, arriba + 5},
                                                       {izquierda + 17, arriba},
                                                       {izquierda + 34, arriba + 10}}));
    EXPECT_EQ(linea.style.lineWidth, 1.6);
    EXPECT_TRUE(support::all<views::FillPath>(escena).empty());
    const auto nombre = textReading(escena, "Música").frame;
    EXPECT_EQ(nombre.y, arriba + 13);
    EXPECT_EQ(nombre.x + nombre.width / 2, loseta.x + 79 / 2.0);
}

TEST_F(PonerUnPerfilVistaTest, MarksTheProfileInForceByColourAlone) {
    estado->acento = 0xFF0000;
    const views::Color rojo{1, 0, 0};
    const auto escena = cara();
    EXPECT_EQ(textReading(escena, "Voz").color, rojo);
    EXPECT_EQ(textReading(escena, "Voz").font, (Font{11.5, views::semibold}));
    EXPECT_EQ(textReading(escena, "Música").color, WO::texto);
    const auto lineas = support::all<views::StrokePath>(escena);
    EXPECT_EQ(lineas.at(0).color, WO::texto2);
    EXPECT_EQ(lineas.at(1).color, rojo);
    const auto fondos = support::all<views::FillShape>(escena);
    EXPECT_EQ(fondos.at(0).color, WO::control);
    EXPECT_EQ(fondos.at(0).shape, views::Shape(views::RoundedRectangle{.cornerRadius = 9}));
    EXPECT_EQ(fondos.at(1).color, rojo.opacity(0.14));
    const auto bordes = support::all<views::StrokeShape>(escena);
    EXPECT_EQ(bordes.at(0).color, WO::filete);
    EXPECT_EQ(bordes.at(0).shape, views::Shape(views::RoundedRectangle{.cornerRadius = 8.5}));
    EXPECT_EQ(bordes.at(0).frame, escena.controls[0].frame.inset(0.5));
    EXPECT_EQ(bordes.at(1).color, rojo.opacity(0.4));
}

TEST_F(PonerUnPerfilVistaTest, MarksAsManyTilesAsTheSnapshotSays) {
    const auto marcadas = [&] {
        int cuantas = 0;
        for (const auto& parte : support::all<views::FillShape>(cara()))
            cuantas += parte.color == WO::acento().opacity(0.14) ? 1 : 0;
        return cuantas;
    };
    EXPECT_EQ(marcadas(), 1);
    estado->perfiles[0].puesto = true;
    EXPECT_EQ(marcadas(), 2);
    for (auto& uno : estado->perfiles)
        uno.puesto = false;
    EXPECT_EQ(marcadas(), 0);
}

TEST_F(PonerUnPerfilVistaTest, AppliesTheTilesProfile) {
    const auto* control = controlLabelled(cara(), "Cine");
    ASSERT_NE(control, nullptr);
    const auto escena = cara();
    EXPECT_EQ(controlLabelled(escena, "Cine")->action,
              (intents::ArchivedAction{"PonerPerfil", {{"id", "p3"}}}));
    EXPECT_EQ(controlLabelled(escena, "Ecualizador encendido")->action,
              (intents::ArchivedAction{"AlternarEncendido", {}}));
}

TEST_F(PonerUnPerfilVistaTest, KeepsTheRoomOfAnEmptyRow) {
    estado->perfiles.clear();
    const auto escena = cara();
    EXPECT_EQ(support::texts(escena),
              (std::vector<std::string>{"PONER UN PERFIL", "ahora: Voz", "Ecualizador encendido",
                                        "se aplica sin abrir Nurva"}));
    EXPECT_EQ(escena.controls.size(), 1u);
    EXPECT_TRUE(hayRegla(escena, {12, 158 - 26 - 10 - 1, 340, 1}));
    // On a card too low for it: header 13, the row's 12, rule 1, switch 10 + 26 in 36 points.
    const auto baja = nurva::escena(mundo, PonerUnPerfilVista{.e = estado}, {364, 60});
    const double arriba = 12 + (36 - (13 + 12 + 1 + 36)) / 2.0;
    EXPECT_EQ(textReading(baja, "PONER UN PERFIL").frame.y, arriba + 1);
    EXPECT_TRUE(hayRegla(baja, {12, arriba + 13 + 12, 340, 1}));
    EXPECT_EQ(baja.controls.at(0).frame.y, arriba + 13 + 12 + 1 + 10);
}

TEST_F(PonerUnPerfilVistaTest, GivesALoneTileTheWholeRow) {
    estado->perfiles.resize(1);
    EXPECT_EQ(cara().controls.at(0).frame, (Rect{12, 37, 340, 44}));
}

TEST_F(PonerUnPerfilVistaTest, SharesTheRowAmongEightTiles) {
    estado->perfiles.assign(8, perfil("p", "Perfil"));
    const auto escena = cara();
    for (std::size_t i = 0; i < 8; ++i)
        EXPECT_NEAR(escena.controls[i].frame.width, (340 - 7 * 8) / 8.0, 1e-9) << i;
}

TEST_F(PonerUnPerfilVistaTest, LetsNineTilesStickOutOnBothSides) {
    estado->perfiles.assign(9, perfil("p", "Perfil"));
    const auto escena = cara();
    const double ancho = 9 * 34 + 8 * 8;  // no tile is narrower than its curve
    for (std::size_t i = 0; i < 9; ++i) {
        EXPECT_EQ(escena.controls[i].frame.width, 34) << i;
        EXPECT_EQ(escena.controls[i].frame.x, 182 - ancho / 2 + static_cast<double>(i) * 42) << i;
    }
}

TEST_F(PonerUnPerfilVistaTest, KeepsTheRoomOfAnEmptyCurve) {
    const Rect conCurva = textReading(cara(), "Música").frame;
    estado->perfiles[0].curva.clear();
    const auto escena = cara();
    EXPECT_EQ(textReading(escena, "Música").frame, conCurva);
    EXPECT_EQ(support::all<views::StrokePath>(escena).size(), 3u);
}

TEST_F(PonerUnPerfilVistaTest, CutsLongNamesToOneLine) {
    estado->perfiles[0].nombre = "Un perfil con un nombre larguísimo";
    estado->perfil = "Un perfil con un nombre tan largo que no cabe en la cabecera del widget";
    const auto escena = cara();
    for (const auto& texto : {textReading(escena, estado->perfiles[0].nombre),
                              textReading(escena, "ahora: " + estado->perfil)}) {
        EXPECT_EQ(texto.lines.size(), 1u);
        EXPECT_TRUE(texto.lines[0].ends_with("…")) << texto.text;
    }
    EXPECT_LE(textReading(escena, estado->perfiles[0].nombre).frame.width, 79);
}

TEST_F(PonerUnPerfilVistaTest, ShowsWhetherTheEqualizerIsOn) {
    const auto puntoDe = [](const views::Scene& escena) {
        for (const auto& parte : support::all<views::FillShape>(escena))
            if (std::holds_alternative<views::Circle>(parte.shape))
                return parte;
        return views::FillShape{};
    };
    EXPECT_EQ(puntoDe(cara()).color, WO::acento());
    EXPECT_EQ(puntoDe(cara()).frame.size(), (views::Size{7, 7}));
    EXPECT_EQ(textReading(cara(), "Ecualizador encendido").font, (Font{11.5, views::semibold}));
    estado->prendido = false;
    EXPECT_EQ(puntoDe(cara()).color, WO::texto3);
    EXPECT_EQ(textReading(cara(), "Ecualizador apagado").color, WO::texto);
}

TEST_F(PonerUnPerfilVistaTest, IsInertWhereTheHostAllowsNoChanges) {
    for (const auto& control : cara().controls)
        EXPECT_TRUE(control.enabled);
    estado->dejaCambiar = false;
    const auto escena = cara();
    EXPECT_EQ(escena.controls.size(), 5u);
    for (const auto& control : escena.controls)
        EXPECT_FALSE(control.enabled) << control.label;
    EXPECT_EQ(textReading(escena, "solo muestra · actívalo en Ajustes").color, WO::texto3);
    EXPECT_TRUE(support::all<views::Group>(escena).empty());
}

TEST_F(PonerUnPerfilVistaTest, IsClosedAfterNineHundredSeconds) {
    estado->cuando = support::noon.addingTimeInterval(-900);
    EXPECT_EQ(support::texts(cara()).back(),
              "Nurva está cerrado. Ábrelo y este widget se pone al día.");
    estado->cuando = foundation::Date{std::numeric_limits<double>::quiet_NaN()};
    EXPECT_EQ(support::texts(cara()).back(),
              "Nurva está cerrado. Ábrelo y este widget se pone al día.");
    estado.reset();
    EXPECT_EQ(support::texts(cara()).back(), "Abre Nurva una vez y este widget se llena.");
}

}  // namespace
}  // namespace nurva

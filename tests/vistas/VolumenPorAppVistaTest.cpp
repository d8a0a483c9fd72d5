#include "vistas/CaraDePrueba.hpp"
#include "vistas/VolumenPorAppVista.hpp"
#include "vistas/WO.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace nurva {
namespace {

using support::controlLabelled;
using support::textReading;
using views::Font;
using views::Rect;

AppCorta app(std::string id,
             std::string nombre,
             double nivel,
             bool silenciada = false,
             bool suena = true) {
    return {std::move(id), std::move(nombre), nivel, silenciada, suena};
}

struct VolumenPorAppVistaTest : testing::Test {
    VolumenPorAppVistaTest() {
        estado->apps = {app("a", "Música", 0.45), app("b", "Mensajes", 0.6, true, false),
                        app("c", "Cine", 1)};
    }
    views::Scene cara() const { return escena(mundo, VolumenPorAppVista{.e = estado}, mediana); }
    std::vector<const views::Control*> controlesDe(const views::Scene& escena,
                                                   const std::string& clave) const {
        std::vector<const views::Control*> suyos;
        for (const auto& control : escena.controls)
            if (std::get<std::string>(control.action.parameters.at(0).second) == clave)
                suyos.push_back(&control);
        return suyos;
    }

    support::World mundo;
    std::optional<EstadoParaWidgets> estado = estadoDeAhora();
};

TEST_F(VolumenPorAppVistaTest, StandsWhereItsLayoutSays) {
    const auto escena = cara();
    // Header 14, three rows of 22, footer 13, four gaps of 9: 129 of the 146 points, in the middle.
    const double arriba = 12 + (146 - (13 + 3 * 22 + 13 + 4 * 9)) / 2.0;
    EXPECT_EQ(textReading(escena, "VOLUMEN POR APP").frame.x, 12);
    EXPECT_EQ(textReading(escena, "VOLUMEN POR APP").frame.y, arriba + 1);
    EXPECT_EQ(textReading(escena, "2 sonando").frame.right(), 352);
    EXPECT_EQ(textReading(escena, "2 sonando").frame.y, arriba);
    const auto nombre = textReading(escena, "Música").frame;
    EXPECT_EQ(nombre.x, 12);
    EXPECT_EQ(nombre.y, arriba + 13 + 9 + 3.5);
    const auto* bajar = controlesDe(escena, "a").at(0);
    EXPECT_EQ(bajar->frame, (Rect{12 + 70 + 7, arriba + 22, 22, 22}));
    const auto* silenciar = controlLabelled(escena, "Silenciar Música");
    ASSERT_NE(silenciar, nullptr);
    EXPECT_EQ(silenciar->frame, (Rect{352 - 26, arriba + 22, 26, 22}));
    EXPECT_EQ(textReading(escena, "45%").frame.right(), 352 - 26 - 7);
    const auto* subir = controlesDe(escena, "a").at(11);
    EXPECT_EQ(subir->frame, (Rect{352 - 26 - 7 - 36 - 7 - 22, arriba + 22, 22, 22}));
}

TEST_F(VolumenPorAppVistaTest, DressesItsTextsAsItsLayoutSays) {
    const auto escena = cara();
    EXPECT_EQ(textReading(escena, "2 sonando").font, (Font{10.5, views::regular}));
    EXPECT_EQ(textReading(escena, "2 sonando").color, WO::texto3);
    EXPECT_EQ(textReading(escena, "Música").font, (Font{12, views::semibold}));
    EXPECT_EQ(textReading(escena, "Música").color, WO::texto);
    EXPECT_EQ(textReading(escena, "45%").font,
              (Font{11, views::regular, views::FontDesign::monospaced}));
    EXPECT_EQ(textReading(escena, "45%").color, WO::texto2);
    const auto pie = textReading(escena, "− y + de 10 en 10 · o toca la barra donde lo quieras");
    EXPECT_EQ(pie.font, (Font{10.5, views::regular}));
    EXPECT_EQ(pie.color, WO::texto3);
    EXPECT_EQ(escena.background, WO::fondo);
}

TEST_F(VolumenPorAppVistaTest, CountsWhatIsPlayingInTheWholeList) {
    EXPECT_EQ(textReading(cara(), "2 sonando").text, "2 sonando");
    estado->apps.assign(5, app("a", "Música", 0.5));
    EXPECT_EQ(textReading(cara(), "5 sonando").text, "5 sonando");
}

TEST_F(VolumenPorAppVistaTest, ShowsHeaderAndFooterWithoutApplications) {
    estado->apps.clear();
    EXPECT_EQ(support::texts(cara()),
              (std::vector<std::string>{"VOLUMEN POR APP", "0 sonando",
                                        "− y + de 10 en 10 · o toca la barra donde lo quieras"}));
    EXPECT_TRUE(cara().controls.empty());
}

TEST_F(VolumenPorAppVistaTest, ShowsAMutedApplicationWithAnEmptyBar) {
    const auto escena = cara();
    EXPECT_EQ(textReading(escena, "Mensajes").color, WO::texto2);
    EXPECT_EQ(textReading(escena, "mudo").color, WO::ambar);
    const auto suyos = controlesDe(escena, "b");
    ASSERT_EQ(suyos.size(), 13u);
    EXPECT_FALSE(suyos.front()->enabled);
    EXPECT_FALSE(suyos.at(11)->enabled);
    const auto* quitar = controlLabelled(escena, "Quitar silencio a Mensajes");
    ASSERT_NE(quitar, nullptr);
    EXPECT_TRUE(quitar->enabled);
    EXPECT_EQ(quitar->action,
              (intents::ArchivedAction{"SilenciarApp", {{"clave", "b"}, {"silenciar", false}}}));

    std::vector<views::FillShape> ambarinas;
    std::vector<views::FillShape> vacias;
    for (const auto& parte : support::all<views::FillShape>(escena)) {
        if (parte.color == WO::ambar.opacity(0.14))
            ambarinas.push_back(parte);
        if (parte.color == WO::texto3)
            vacias.push_back(parte);
    }
    ASSERT_EQ(ambarinas.size(), 1u);
    EXPECT_EQ(ambarinas[0].frame, quitar->frame);
    ASSERT_EQ(vacias.size(), 1u);
    EXPECT_EQ(vacias[0].frame.width, 0);
    const auto simbolos = support::all<views::DrawSymbol>(escena);
    const auto tachado = std::find_if(simbolos.begin(), simbolos.end(), [](const auto& simbolo) {
        return simbolo.name == "speaker.slash.fill";
    });
    ASSERT_NE(tachado, simbolos.end());
    EXPECT_EQ(tachado->color, WO::ambar);
    EXPECT_EQ(tachado->font, (Font{10, views::regular}));
}

TEST_F(VolumenPorAppVistaTest, LeavesTheTenthsOfAMutedApplicationToPress) {
    const auto escena = cara();
    const auto suyos = controlesDe(escena, "b");
    ASSERT_EQ(suyos.size(), 13u);
    for (std::size_t i = 1; i <= 10; ++i) {
        EXPECT_TRUE(suyos[i]->enabled) << i;
        EXPECT_EQ(std::get<double>(suyos[i]->action.parameters.at(1).second),
                  static_cast<double>(i) / 10)
            << i;
    }
}

TEST_F(VolumenPorAppVistaTest, PutsTheKnobOfAMutedApplicationAtTheLeadingEdge) {
    const auto escena = cara();
    const auto* quitar = controlLabelled(escena, "Quitar silencio a Mensajes");
    ASSERT_NE(quitar, nullptr);
    const double barra = 12 + 70 + 7 + 22 + 7;
    std::vector<Rect> perillas;
    for (const auto& parte : support::all<views::FillShape>(escena))
        if (parte.shape == views::Shape(views::RoundedRectangle{.cornerRadius = 3}))
            perillas.push_back(parte.frame);
    ASSERT_EQ(perillas.size(), 3u);
    EXPECT_GT(perillas[0].x, barra);
    EXPECT_EQ(perillas[1], (Rect{barra, quitar->frame.y + 3, 7, 16}));
}

TEST_F(VolumenPorAppVistaTest, EdgesTheMuteButtonOfAMutedApplicationInAmber) {
    const auto escena = cara();
    const auto* quitar = controlLabelled(escena, "Quitar silencio a Mensajes");
    ASSERT_NE(quitar, nullptr);
    std::vector<views::StrokeShape> suyos;
    for (const auto& borde : support::all<views::StrokeShape>(escena))
        if (borde.frame == quitar->frame.inset(0.5))
            suyos.push_back(borde);
    ASSERT_EQ(suyos.size(), 1u);
    EXPECT_EQ(suyos[0].color, WO::ambar.opacity(0.35));
    EXPECT_EQ(suyos[0].lineWidth, 1);
}

TEST_F(VolumenPorAppVistaTest, MutesWhatSounds) {
    const auto escena = cara();
    const auto* silenciar = controlLabelled(escena, "Silenciar Música");
    ASSERT_NE(silenciar, nullptr);
    EXPECT_EQ(silenciar->action,
              (intents::ArchivedAction{"SilenciarApp", {{"clave", "a"}, {"silenciar", true}}}));
    const auto bordes = support::all<views::StrokeShape>(escena);
    EXPECT_TRUE(std::any_of(bordes.begin(), bordes.end(), [&](const auto& borde) {
        return borde.frame == silenciar->frame.inset(0.5) && borde.color == WO::filete;
    }));
}

TEST_F(VolumenPorAppVistaTest, StopsTheStepsAtTheEndsOfTheLevel) {
    estado->apps = {app("a", "A", 0), app("b", "B", 1), app("c", "C", 0.5)};
    const auto escena = cara();
    EXPECT_FALSE(controlesDe(escena, "a").at(0)->enabled);
    EXPECT_TRUE(controlesDe(escena, "a").at(11)->enabled);
    EXPECT_TRUE(controlesDe(escena, "b").at(0)->enabled);
    EXPECT_FALSE(controlesDe(escena, "b").at(11)->enabled);
    EXPECT_TRUE(controlesDe(escena, "c").at(0)->enabled);
    EXPECT_TRUE(controlesDe(escena, "c").at(11)->enabled);
    EXPECT_EQ(textReading(escena, "0%").text, "0%");
    EXPECT_EQ(textReading(escena, "100%").text, "100%");
}

TEST_F(VolumenPorAppVistaTest, IsInertWhereTheHostAllowsNoChanges) {
    estado->dejaCambiar = false;
    const auto escena = cara();
    EXPECT_EQ(textReading(escena, "Solo mirar · se enciende en Ajustes → Widgets").color,
              WO::texto3);
    EXPECT_EQ(escena.controls.size(), 9u);  // two steps and a mute button a row, no tenths
    for (const auto& control : escena.controls)
        EXPECT_FALSE(control.enabled) << control.label;
    for (const auto& grupo : support::all<views::Group>(escena))
        EXPECT_EQ(grupo.opacity, 0.45);
    EXPECT_EQ(support::all<views::Group>(escena).size(), 6u);
}

TEST_F(VolumenPorAppVistaTest, CutsALongNameToSeventyPoints) {
    estado->apps = {app("a", "Una aplicación con un nombre larguísimo", 0.5)};
    const auto nombre = textReading(cara(), estado->apps[0].nombre);
    EXPECT_EQ(nombre.lines.size(), 1u);
    EXPECT_TRUE(nombre.lines[0].ends_with("…"));
    EXPECT_LE(nombre.frame.width, 70);
    EXPECT_EQ(nombre.frame.x, 12);
}

TEST_F(VolumenPorAppVistaTest, CentresWhatIsTooTallAndLeavesOutWhatLiesOutside) {
    estado->apps.clear();
    for (int i = 0; i < 9; ++i)
        estado->apps.push_back(app(std::to_string(i), "App " + std::to_string(i), 0.5));
    const auto escena = cara();
    EXPECT_EQ(textReading(escena, "App 4").frame.y + 7.5, 85);
    EXPECT_EQ(support::texts(escena).front(), "App 2");
    for (const auto& control : escena.controls)
        EXPECT_TRUE(control.frame.y < 170 && control.frame.bottom() > 0) << control.label;
}

TEST_F(VolumenPorAppVistaTest, SpeaksTheChosenLanguage) {
    estado->idioma = "en";
    const auto escena = cara();
    EXPECT_EQ(textReading(escena, "VOLUME BY APP").text, "VOLUME BY APP");
    EXPECT_EQ(textReading(escena, "muted").text, "muted");
    EXPECT_NE(controlLabelled(escena, "Mute Música"), nullptr);
    EXPECT_NE(controlLabelled(escena, "30 percent"), nullptr);
}

TEST_F(VolumenPorAppVistaTest, IsClosedAfterNineHundredSeconds) {
    estado->cuando = support::noon.addingTimeInterval(-899);
    EXPECT_EQ(textReading(cara(), "2 sonando").text, "2 sonando");
    estado->cuando = support::noon.addingTimeInterval(-900);
    EXPECT_EQ(support::texts(cara()).back(),
              "Nurva está cerrado. Ábrelo y este widget se pone al día.");
    estado.reset();
    EXPECT_EQ(support::texts(cara()).back(), "Abre Nurva una vez y este widget se llena.");
}

TEST_F(VolumenPorAppVistaTest, SetsTheAccentOfTheSnapshot) {
    estado->acento = 0xFF0000;
    const auto partes = support::all<views::FillShape>(cara());
    EXPECT_TRUE(std::any_of(partes.begin(), partes.end(), [](const auto& parte) {
        return parte.color == views::Color{1, 0, 0};
    }));
}

TEST(Porciento, RoundsHalvesAwayFromZero) {
    EXPECT_EQ(porciento(0), "0%");
    EXPECT_EQ(porciento(0.45), "45%");
    EXPECT_EQ(porciento(0.125), "13%");
    EXPECT_EQ(porciento(0.005), "1%");
    EXPECT_EQ(porciento(0.285), "28%");
    EXPECT_EQ(porciento(1), "100%");
    EXPECT_EQ(porciento(1.7), "170%");
    EXPECT_EQ(porciento(-0.2), "-20%");
    EXPECT_EQ(porciento(-0.125), "-13%");
    EXPECT_EQ(porciento(9e16), "9000000000000000000%");
}

TEST(PorcientoDeathTest, StopsTheProcessAtWhatIsNoWholeNumber) {
    const double infinito = std::numeric_limits<double>::infinity();
    for (const double nivel : {1e300, -1e300, 9.3e16, infinito, -infinito, std::nan("")}) {
        EXPECT_FALSE(tienePorciento(nivel)) << nivel;
        EXPECT_DEATH(porciento(nivel), "cannot be shown in per cent") << nivel;
    }
    for (const double nivel : {0.0, -0.2, 9.2e16, -9.2e16})
        EXPECT_TRUE(tienePorciento(nivel)) << nivel;
}

TEST(PorcientoDeathTest, LetsAMutedLevelBe) {
    const support::World mundo;
    EstadoParaWidgets estado = estadoDeAhora();
    estado.apps = {app("a", "A", 1e300, true)};
    EXPECT_EQ(textReading(escena(mundo, VolumenPorAppVista{.e = estado}, mediana), "mudo").text,
              "mudo");
    estado.apps[0].silenciada = false;
    EXPECT_DEATH(escena(mundo, VolumenPorAppVista{.e = estado}, mediana), "per cent");
}

}  // namespace
}  // namespace nurva

#include "linea/Idioma.hpp"
#include "vistas/CaraDePrueba.hpp"
#include "vistas/JaladorChico.hpp"
#include "vistas/WO.hpp"

#include <gtest/gtest.h>

#include <limits>

namespace nurva {
namespace {

using views::Rect;

/// The bar on a card that leaves it `ancho` points.
views::Scene barra(const JaladorChico& jalador, double ancho = 100) {
    const support::World mundo;
    const views::BuildScope construccion(mundo.environment);
    Idioma::fijar(std::nullopt);
    WO::acentoHex = 0xFF0000;
    return escena(mundo, jalador, {ancho + 24, 40});
}

JaladorChico jalador(double nivel) {
    return {.nivel = nivel, .silenciada = false, .clave = "a", .puedeCambiar = true};
}

std::vector<views::FillShape> partes(const views::Scene& escena) {
    return support::all<views::FillShape>(escena);
}

TEST(JaladorChico, FillsWithinItsBounds) {
    EXPECT_EQ(fraccionLlena(0), 0);
    EXPECT_EQ(fraccionLlena(1), 1);
    EXPECT_EQ(fraccionLlena(1.7), 1);
    EXPECT_EQ(fraccionLlena(-0.2), 0);
    EXPECT_EQ(fraccionLlena(0.02), 0.02);
    EXPECT_EQ(fraccionLlena(std::numeric_limits<double>::infinity()), 1);
}

TEST(JaladorChico, LaysTrackFillAndKnobOnEachOther) {
    const auto capas = partes(barra(jalador(0.6)));
    ASSERT_EQ(capas.size(), 3u);
    EXPECT_EQ(capas[0].shape, views::Shape(views::Capsule{}));
    EXPECT_EQ(capas[0].frame, (Rect{12, 12 + 5.5, 100, 5}));
    EXPECT_EQ(capas[0].color, WO::control);
    EXPECT_EQ(capas[1].shape, views::Shape(views::Capsule{}));
    EXPECT_EQ(capas[1].frame, (Rect{12, 12 + 5.5, 60, 5}));
    EXPECT_EQ(capas[1].color, (views::Color{1, 0, 0}));
    EXPECT_EQ(capas[2].shape, views::Shape(views::RoundedRectangle{.cornerRadius = 3}));
    EXPECT_EQ(capas[2].frame, (Rect{12 + 56.5, 12, 7, 16}));
    EXPECT_EQ(capas[2].color, (views::Color{0.847, 0.867, 0.875}));
}

TEST(JaladorChico, KeepsTheKnobAtTheLeadingEdgeNearZero) {
    for (const double nivel : {0.0, -0.2, 0.02, 0.035})
        EXPECT_EQ(partes(barra(jalador(nivel))).back().frame, (Rect{12, 12, 7, 16})) << nivel;
    EXPECT_EQ(partes(barra(jalador(0.02)))[1].frame.width, 2);
    EXPECT_EQ(partes(barra(jalador(0)))[1].frame.width, 0);
}

TEST(JaladorChico, CentresTheKnobOnTheTrailingEndWhenFull) {
    for (const double nivel : {1.0, 1.7})
        EXPECT_EQ(partes(barra(jalador(nivel))).back().frame.x, 12 + 100 - 3.5) << nivel;
}

TEST(JaladorChico, ShowsAMutedLevelInGrey) {
    JaladorChico muda = jalador(0.6);
    muda.silenciada = true;
    const auto escena = barra(muda);
    EXPECT_EQ(partes(escena)[1].color, WO::texto3);
    EXPECT_EQ(partes(escena)[1].frame.width, 60);
    EXPECT_EQ(escena.controls.size(), 10u);
}

TEST(JaladorChico, SetsTheLevelOfAMutedApplicationToo) {
    JaladorChico muda = jalador(0.6);
    muda.silenciada = true;
    const auto escena = barra(muda);
    for (int i = 1; i <= 10; ++i) {
        const auto* decimo = support::controlAt(escena, {12.0 + 10 * i - 5, 20});
        ASSERT_NE(decimo, nullptr) << i;
        EXPECT_TRUE(decimo->enabled) << i;
        EXPECT_EQ(decimo->action,
                  (intents::ArchivedAction{"PonerVolumen", {{"clave", "a"}, {"nivel", i / 10.0}}}));
    }
}

TEST(JaladorChico, HasATenthForEveryTenPercent) {
    const auto escena = barra(jalador(0.5));
    ASSERT_EQ(escena.controls.size(), 10u);
    for (int i = 1; i <= 10; ++i) {
        const auto& decimo = escena.controls[static_cast<std::size_t>(i - 1)];
        EXPECT_NEAR(decimo.frame.x, 12 + 10 * (i - 1), 1e-9);
        EXPECT_NEAR(decimo.frame.width, 10, 1e-9);
        EXPECT_EQ(decimo.frame.y, 12);
        EXPECT_EQ(decimo.frame.height, 16);
        EXPECT_EQ(decimo.label, std::to_string(i * 10) + " por ciento");
        EXPECT_TRUE(decimo.enabled);
        EXPECT_EQ(decimo.action,
                  (intents::ArchivedAction{"PonerVolumen", {{"clave", "a"}, {"nivel", i / 10.0}}}));
    }
}

TEST(JaladorChico, SetsThirtyPercentWithItsThirdTenth) {
    const auto escena = barra(jalador(0.5));
    for (const double x : {32.0, 37.0, 41.9}) {
        const auto* decimo = support::controlAt(escena, {x, 20});
        ASSERT_NE(decimo, nullptr);
        EXPECT_EQ(decimo->label, "30 por ciento");
        EXPECT_EQ(std::get<double>(decimo->action.parameters.at(1).second), 0.3);
    }
}

TEST(JaladorChico, ShowsTheTenthsToAScreenReaderThoughThereIsNothingToSee) {
    const auto escena = barra(jalador(0.5));
    EXPECT_EQ(escena.accessibility.size(), 10u);
    EXPECT_EQ(escena.drawing.size(), 3u);
}

TEST(JaladorChico, IsForLookingOnlyWithoutAKeyOrLeave) {
    JaladorChico sinClave = jalador(0.5);
    sinClave.clave.reset();
    JaladorChico sinPermiso = jalador(0.5);
    sinPermiso.puedeCambiar = false;
    for (const auto& escena : {barra(sinClave), barra(sinPermiso)}) {
        EXPECT_TRUE(escena.controls.empty());
        EXPECT_TRUE(escena.accessibility.empty());
        EXPECT_EQ(escena.drawing.size(), 3u);
    }
}

TEST(JaladorChico, SplitsEveryWidthIntoTenths) {
    // Below seven points the knob is wider than the bar, and the tenths with it.
    for (double ancho = 7; ancho <= 200; ancho += 0.5) {
        const auto escena = barra(jalador(0.5), ancho);
        double borde = 12;
        for (const auto& decimo : escena.controls) {
            EXPECT_NEAR(decimo.frame.x, borde, 1e-9) << ancho;
            borde = decimo.frame.right();
        }
        EXPECT_NEAR(borde, 12 + ancho, 1e-9) << ancho;
    }
}

}  // namespace
}  // namespace nurva

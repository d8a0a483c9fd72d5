#include "linea/Idioma.hpp"
#include "vistas/BotonDePaso.hpp"
#include "vistas/CaraDePrueba.hpp"
#include "vistas/WO.hpp"

#include <gtest/gtest.h>

namespace nurva {
namespace {

views::Scene boton(const BotonDePaso& boton, const support::World& mundo = support::World()) {
    const views::BuildScope construccion(mundo.environment);
    Idioma::fijar(std::nullopt);
    return escena(mundo, boton, {46, 46});
}

TEST(BotonDePaso, MovesTheLevelByATenthWithinItsBounds) {
    EXPECT_EQ(nivelDePaso(0.4, true), 0.5);
    EXPECT_EQ(nivelDePaso(0.95, true), 1.0);
    EXPECT_EQ(nivelDePaso(1.0, true), 1.0);
    EXPECT_EQ(nivelDePaso(1.7, true), 1.0);
    EXPECT_EQ(nivelDePaso(0.05, false), 0);
    EXPECT_EQ(nivelDePaso(0, false), 0);
    EXPECT_EQ(nivelDePaso(-0.2, true), 0);
}

TEST(BotonDePaso, DoesNotRound) {
    EXPECT_EQ(nivelDePaso(0.35, false), 0.35 - 0.1);
    EXPECT_EQ(nivelDePaso(0.35, true), 0.35 + 0.1);
    EXPECT_EQ(nivelDePaso(0.123456, true), 0.123456 + 0.1);
}

TEST(BotonDePaso, CarriesTheNewLevel) {
    const auto escena = boton({.clave = "a", .nivel = 0.4, .subir = true, .activo = true});
    ASSERT_EQ(escena.controls.size(), 1u);
    EXPECT_EQ(escena.controls[0].action,
              (intents::ArchivedAction{"PonerVolumen", {{"clave", "a"}, {"nivel", 0.5}}}));
    EXPECT_EQ(escena.controls[0].frame, (views::Rect{12, 12, 22, 22}));
    EXPECT_TRUE(escena.controls[0].enabled);
}

TEST(BotonDePaso, IsASquareWithABorderAndASymbol) {
    const auto escena = boton({.clave = "a", .nivel = 0.4, .subir = true, .activo = true});
    ASSERT_EQ(escena.drawing.size(), 3u);
    const auto fondo = support::all<views::FillShape>(escena).at(0);
    EXPECT_EQ(fondo.shape, views::Shape(views::RoundedRectangle{.cornerRadius = 7}));
    EXPECT_EQ(fondo.frame, (views::Rect{12, 12, 22, 22}));
    EXPECT_EQ(fondo.color, WO::control);
    const auto simbolo = support::all<views::DrawSymbol>(escena).at(0);
    EXPECT_EQ(simbolo.name, "plus");
    EXPECT_EQ(simbolo.font, (views::Font{9, views::bold}));
    EXPECT_EQ(simbolo.color, WO::texto2);
    EXPECT_NEAR(simbolo.frame.x + simbolo.frame.width / 2, 23, 1e-9);
    EXPECT_NEAR(simbolo.frame.y + simbolo.frame.height / 2, 23, 1e-9);
    const auto borde = support::all<views::StrokeShape>(escena).at(0);
    EXPECT_EQ(borde.shape, views::Shape(views::RoundedRectangle{.cornerRadius = 6.5}));
    EXPECT_EQ(borde.frame, (views::Rect{12.5, 12.5, 21, 21}));
    EXPECT_EQ(borde.lineWidth, 1);
    EXPECT_EQ(borde.color, WO::filete);
}

TEST(BotonDePaso, DimsAsAWholeWhenItIsOff) {
    const auto escena = boton({.clave = "a", .nivel = 0, .subir = false, .activo = false});
    ASSERT_EQ(escena.drawing.size(), 1u);
    EXPECT_EQ(std::get<views::Group>(escena.drawing[0]).opacity, 0.45);
    const auto simbolo = support::all<views::DrawSymbol>(escena).at(0);
    EXPECT_EQ(simbolo.name, "minus");
    EXPECT_EQ(simbolo.color, WO::texto3);
    EXPECT_FALSE(escena.controls.at(0).enabled);
    EXPECT_FALSE(escena.accessibility.at(0).enabled);
}

TEST(BotonDePaso, SaysWhichWayItGoes) {
    const BotonDePaso subir{.clave = "a", .nivel = 0.4, .subir = true, .activo = true};
    const BotonDePaso bajar{.clave = "a", .nivel = 0.4, .subir = false, .activo = true};
    EXPECT_EQ(boton(subir).accessibility.at(0).label, "Subir");
    EXPECT_EQ(boton(bajar).accessibility.at(0).label, "Bajar");
    const support::World ingles(support::World::bundleIn({"en"}));
    EXPECT_EQ(boton(subir, ingles).accessibility.at(0).label, "Turn up");
}

}  // namespace
}  // namespace nurva

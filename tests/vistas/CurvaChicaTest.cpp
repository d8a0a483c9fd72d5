#include "vistas/CaraDePrueba.hpp"
#include "vistas/CurvaChica.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace nurva {
namespace {

using views::Point;

constexpr views::Color verde{0.25, 0.5, 0.75};

std::vector<Point> puntos(std::vector<double> ganancias, views::Size medida = {146, 44}) {
    return puntosDeCurva(ganancias, medida);
}

views::Scene dibujo(std::vector<double> ganancias, bool conArea) {
    const support::World mundo;
    return escena(
        mundo,
        CurvaChica{
            .ganancias = std::move(ganancias), .color = verde, .grosor = 2.2, .conArea = conArea}
            .frame({.width = 100, .height = 48}));
}

TEST(CurvaChica, HasNoPointsWithoutGains) {
    EXPECT_TRUE(puntos({}).empty());
    EXPECT_TRUE(dibujo({}, true).drawing.empty());
    EXPECT_TRUE(dibujo({}, false).drawing.empty());
}

TEST(CurvaChica, PutsALoneGainOnTheLeftEdge) {
    EXPECT_EQ(puntos({0}), (std::vector<Point>{{0, 22}}));
}

TEST(CurvaChica, PutsTwoGainsOnTheEdges) {
    EXPECT_EQ(puntos({12, -12}), (std::vector<Point>{{0, 0}, {146, 44}}));
}

TEST(CurvaChica, SpacesItsPointsEvenly) {
    const auto todos = puntos(std::vector<double>(13, 0));
    for (std::size_t i = 0; i < todos.size(); ++i)
        EXPECT_EQ(todos[i].x, 146.0 * static_cast<double>(i) / 12) << i;
    EXPECT_EQ(todos.back().x, 146);
}

TEST(CurvaChica, DrawsDecibelsOnAFixedScale) {
    const std::vector<std::pair<double, double>> casos{
        {12, 0}, {6, 11},   {0, 22},    {-6, 33},     {-12, 44},
        {15, 0}, {-30, 44}, {1e300, 0}, {-1e300, 44},
    };
    for (const auto& [ganancia, y] : casos)
        EXPECT_EQ(puntos({ganancia}).at(0).y, y) << ganancia;
    const double infinito = std::numeric_limits<double>::infinity();
    EXPECT_EQ(puntos({infinito}).at(0).y, 0);
    EXPECT_EQ(puntos({-infinito}).at(0).y, 44);
}

TEST(CurvaChica, ComputesItsPointsToTheLastBit) {
    for (int paso = -1300; paso <= 1300; ++paso) {
        const double ganancia = paso / 100.0;
        const double acotada = ganancia > 12 ? 12 : ganancia;
        double fraccion = acotada / -24 + 0.5;
        if (ganancia <= -12)
            fraccion = 1;
        EXPECT_EQ(puntos({ganancia}).at(0).y, 44 * fraccion) << ganancia;
    }
}

TEST(CurvaChica, LetsWhatIsNoNumberThrough) {
    const auto todos = puntos({0, std::numeric_limits<double>::quiet_NaN(), 12});
    EXPECT_TRUE(std::isnan(todos.at(1).y));
    EXPECT_EQ(todos.at(1).x, 73);
    EXPECT_EQ(todos.at(2), (Point{146, 0}));
}

TEST(CurvaChica, StrokesALineWithRoundEnds) {
    const auto escena = dibujo({0, 12}, false);
    ASSERT_EQ(escena.drawing.size(), 1u);
    const auto linea = support::all<views::StrokePath>(escena).at(0);
    EXPECT_EQ(linea.points, (std::vector<Point>{{35, 85}, {135, 61}}));
    EXPECT_EQ(linea.style,
              (views::StrokeStyle{2.2, views::LineCap::round, views::LineJoin::round, 10}));
    EXPECT_EQ(linea.color, verde);
}

TEST(CurvaChica, TintsTheAreaBelowTheLine) {
    const auto escena = dibujo({0, 0}, true);
    ASSERT_EQ(escena.drawing.size(), 2u);
    EXPECT_TRUE(std::holds_alternative<views::FillPath>(escena.drawing.at(0)));
    const auto area = support::all<views::FillPath>(escena).at(0);
    EXPECT_EQ(area.points, (std::vector<Point>{{35, 109}, {35, 85}, {135, 85}, {135, 109}}));
    EXPECT_EQ(area.color, verde.opacity(0.1));
}

TEST(CurvaChica, FillsWhateverItIsGiven) {
    const support::World mundo;
    const CurvaChica curva{.ganancias = {-12, -12}, .color = verde, .grosor = 1, .conArea = false};
    for (double lado = 25; lado <= 400; lado += 25) {
        const auto linea =
            support::all<views::StrokePath>(escena(mundo, curva, {lado, lado})).at(0);
        EXPECT_EQ(linea.points, (std::vector<Point>{{12, lado - 12}, {lado - 12, lado - 12}}));
    }
}

}  // namespace
}  // namespace nurva

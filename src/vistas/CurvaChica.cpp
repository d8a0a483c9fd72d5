#include "vistas/CurvaChica.hpp"

#include "platform/views/layout/GeometryReader.hpp"
#include "platform/views/shapes/Path.hpp"
#include "platform/views/stacks/Stacks.hpp"
#include "platform/views/view/ViewList.hpp"

#include <algorithm>
#include <cstddef>

namespace nurva {

using namespace views;

namespace {

constexpr double decibelesMaximos = 12;

/// How far down a gain lies, as a part of the height. The comparisons let a NaN through.
double fraccion(double ganancia) {
    if (ganancia <= -decibelesMaximos)
        return 1;
    const double acotada = ganancia > decibelesMaximos ? decibelesMaximos : ganancia;
    return acotada / (-2 * decibelesMaximos) + 0.5;
}

/// The points of the line, from and back to the bottom edge.
std::vector<Point> area(const std::vector<Point>& linea, double abajo) {
    if (linea.empty())
        return {};
    std::vector<Point> puntos{{linea.front().x, abajo}};
    puntos.insert(puntos.end(), linea.begin(), linea.end());
    puntos.push_back({linea.back().x, abajo});
    return puntos;
}

}  // namespace

std::vector<Point> puntosDeCurva(std::span<const double> ganancias, Size medida) {
    const auto divisor = static_cast<double>(std::max<std::size_t>(ganancias.size(), 2) - 1);
    std::vector<Point> puntos;
    puntos.reserve(ganancias.size());
    for (const double ganancia : ganancias) {
        const auto i = static_cast<double>(puntos.size());
        puntos.push_back({medida.width * i / divisor, medida.height * fraccion(ganancia)});
    }
    return puntos;
}

View CurvaChica::body() const {
    return GeometryReader([curva = *this](Size medida) -> View {
        const auto puntos = puntosDeCurva(curva.ganancias, medida);
        return ZStack{}({
            when(curva.conArea,
                 [&] { return Path{area(puntos, medida.height)}.fill(curva.color.opacity(0.1)); }),
            Path{puntos}.stroke(curva.color, {.lineWidth = curva.grosor,
                                              .lineCap = LineCap::round,
                                              .lineJoin = LineJoin::round}),
        });
    });
}

}  // namespace nurva

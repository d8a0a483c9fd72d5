#include "platform/canvas/PixelCanvas.hpp"
#include "vistas/CaraDePrueba.hpp"
#include "vistas/CurvaChica.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <utility>
#include <vector>

namespace nurva {
namespace {

/// Fine enough to tell a round end or corner from a flat one.
constexpr double pixelesPorPunto = 10;

constexpr views::Size tarjeta{74, 58};
constexpr views::Rect marco{12, 12, 50, 34};  // what its margins leave

/// Where a curve that fills the frame leaves ink on the card.
struct Tinta {
    int izquierda = std::numeric_limits<int>::max();
    int arriba = std::numeric_limits<int>::max();
    int derecha = 0;
    int abajo = 0;
};

Tinta tintaDe(std::vector<double> ganancias, double grosor) {
    const support::World mundo;
    const CurvaChica curva{
        .ganancias = std::move(ganancias), .color = {1, 1, 1}, .grosor = grosor, .conArea = false};
    canvas::FontLibrary fuentes;
    canvas::PixelCanvas lienzo(fuentes);
    const canvas::Pixels pixeles = lienzo.draw(escena(mundo, curva, tarjeta), pixelesPorPunto);
    Tinta tinta;
    for (int y = 0; y < pixeles.size.height; ++y)
        for (int x = 0; x < pixeles.size.width; ++x)
            if (pixeles.row(y)[static_cast<std::size_t>(x)] != 0) {
                tinta.izquierda = std::min(tinta.izquierda, x);
                tinta.arriba = std::min(tinta.arriba, y);
                tinta.derecha = std::max(tinta.derecha, x + 1);
                tinta.abajo = std::max(tinta.abajo, y + 1);
            }
    return tinta;
}

TEST(CurvaEnPixeles, ReachesHalfItsWidthBeyondItsFrameOnEverySide) {
    // From corner to corner for the caps; level at the sides, with peaks between, for the joins.
    for (const std::vector<double>& ganancias :
         {std::vector<double>{12, -12}, {-12, 12}, {0, 0, 12, -12, 0, 0}, {0, 0, -30, 30, 0, 0}})
        for (const double grosor : {1.6, 2.2, 4.0}) {
            const Tinta tinta = tintaDe(ganancias, grosor);
            const double alcance = grosor / 2 * pixelesPorPunto;
            EXPECT_NEAR(marco.x * pixelesPorPunto - tinta.izquierda, alcance, 1) << grosor;
            EXPECT_NEAR(marco.y * pixelesPorPunto - tinta.arriba, alcance, 1) << grosor;
            EXPECT_NEAR(tinta.derecha - marco.right() * pixelesPorPunto, alcance, 1) << grosor;
            EXPECT_NEAR(tinta.abajo - marco.bottom() * pixelesPorPunto, alcance, 1) << grosor;
        }
}

}  // namespace
}  // namespace nurva

#include "estado/EstadoParaWidgets.hpp"

#include <gtest/gtest.h>

namespace {

using nurva::EstadoParaWidgets;

TEST(EstadoParaWidgets, DefaultRecordHasTheInitialValues) {
    const auto estado = EstadoParaWidgets::porDefecto({785000000.5});
    EXPECT_EQ(estado.perfil, "Música");
    EXPECT_EQ(estado.razon, "");
    EXPECT_EQ(estado.curva, std::vector<double>(13, 0.0));
    EXPECT_TRUE(estado.prendido);
    EXPECT_TRUE(estado.automatico);
    EXPECT_EQ(estado.salida, "");
    EXPECT_FALSE(estado.salidaMedida);
    EXPECT_EQ(estado.cuartoAhora, std::nullopt);
    EXPECT_EQ(estado.cuartoAntes, std::nullopt);
    EXPECT_EQ(estado.medidoHace, "");
    EXPECT_EQ(estado.salidasSinMedir, 0);
    EXPECT_TRUE(estado.perfiles.empty());
    EXPECT_TRUE(estado.apps.empty());
    EXPECT_FALSE(estado.dejaCambiar);
    EXPECT_EQ(estado.acento, 6087834u);
    EXPECT_EQ(estado.idioma, std::nullopt);
    EXPECT_EQ(estado.cuando.secondsSinceReferenceDate, 785000000.5);
}

}  // namespace

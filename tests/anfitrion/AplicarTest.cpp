#include "anfitrion/Aplicar.hpp"
#include "anfitrion/Escena.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace anfitrion {
namespace {

using nurva::EstadoParaWidgets;
using nurva::GrupoDeApps::Peticion;

struct AplicarTest : testing::Test {
    /// Refused, for this reason, and nothing has changed.
    void rechaza(const Peticion& peticion, Rechazo motivo) {
        const EstadoParaWidgets antes = estado;
        EXPECT_EQ(aplicar(peticion, estado), motivo);
        EXPECT_EQ(estado, antes);
    }

    EstadoParaWidgets estado = escenas().front().inicial;
};

TEST_F(AplicarTest, SetsTheVolumeOfAnApplication) {
    EXPECT_EQ(aplicar(Peticion::volumen("org.ejemplo.navegador", 0.5), estado), Rechazo::ninguno);
    EXPECT_EQ(estado.apps.at(1).nivel, 0.5);
    for (const double nivel : {0.0, 1.0})
        EXPECT_EQ(aplicar(Peticion::volumen("org.ejemplo.navegador", nivel), estado),
                  Rechazo::ninguno);
}

TEST_F(AplicarTest, RefusesALevelOutsideItsRange) {
    for (const double nivel : {-0.1, 1.1, std::nan(""), std::numeric_limits<double>::infinity()})
        rechaza(Peticion::volumen("org.ejemplo.navegador", nivel), Rechazo::nivelFueraDeRango);
}

TEST_F(AplicarTest, MutesAndUnmutes) {
    EXPECT_EQ(aplicar(Peticion::silenciar("org.ejemplo.mensajes", false), estado),
              Rechazo::ninguno);
    EXPECT_FALSE(estado.apps.at(2).silenciada);
    EXPECT_EQ(aplicar(Peticion::silenciar("org.ejemplo.mensajes", true), estado), Rechazo::ninguno);
    EXPECT_TRUE(estado.apps.at(2).silenciada);
}

TEST_F(AplicarTest, SwitchesTheEqualizerOffAndOnAgain) {
    EXPECT_EQ(aplicar(Peticion::alternarEncendido(), estado), Rechazo::ninguno);
    EXPECT_FALSE(estado.prendido);
    EXPECT_EQ(aplicar(Peticion::alternarEncendido(), estado), Rechazo::ninguno);
    EXPECT_TRUE(estado.prendido);
}

TEST_F(AplicarTest, AppliesAProfileWithItsCurve) {
    EXPECT_EQ(aplicar(Peticion::ponerPerfil("cine"), estado), Rechazo::ninguno);
    EXPECT_EQ(estado.perfil, "Cine");
    EXPECT_EQ(estado.curva, estado.perfiles.at(2).curva);
    EXPECT_FALSE(estado.automatico);
    for (const auto& perfil : estado.perfiles)
        EXPECT_EQ(perfil.puesto, perfil.id == "cine");
}

TEST_F(AplicarTest, RefusesWhatItDoesNotKnow) {
    rechaza(Peticion::volumen("nadie", 0.5), Rechazo::appDesconocida);
    rechaza(Peticion::silenciar("", true), Rechazo::appDesconocida);
    rechaza(Peticion::ponerPerfil("ninguno"), Rechazo::perfilDesconocido);
}

TEST_F(AplicarTest, RefusesEverythingWhereChangesAreNotAllowed) {
    estado.dejaCambiar = false;
    for (const Peticion& peticion :
         {Peticion::volumen("org.ejemplo.navegador", 0.5), Peticion::silenciar("nadie", true),
          Peticion::alternarEncendido(), Peticion::ponerPerfil("cine")})
        rechaza(peticion, Rechazo::noSeDejaCambiar);
}

}  // namespace
}  // namespace anfitrion

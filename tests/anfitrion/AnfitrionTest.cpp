#include "anfitrion/Anfitrion.hpp"
#include "estado/CargarEstado.hpp"
#include "support/World.hpp"

#include <gtest/gtest.h>

#include <algorithm>

namespace anfitrion {
namespace {

using nurva::GrupoDeApps::Peticion;

/// A clock that the test moves.
struct Reloj final : foundation::Clock {
    foundation::Date ahora = support::noon;
    foundation::Date now() const override { return ahora; }
};

struct AnfitrionTest : testing::Test {
    AnfitrionTest() { mundo.files.containers["group.org.nurva.Nurva"] = "/contenedor"; }

    Anfitrion abrir(Escena escena = escenas().front()) {
        return {std::move(escena), "/contenedor", entorno,
                [this](std::string_view clave, const auto&) { avisos.emplace_back(clave); }};
    }
    nurva::EstadoParaWidgets publicado() const { return nurva::cargarEstado(entorno).value(); }

    support::World mundo;
    Reloj reloj;
    foundation::Environment entorno{reloj, mundo.files, mundo.notifications,
                                    mundo.environment.mainBundle, mundo.environment.locale};
    std::vector<std::string> avisos;
};

TEST_F(AnfitrionTest, PublishesItsSceneAtOnce) {
    const Anfitrion anfitrion = abrir();
    nurva::EstadoParaWidgets esperado = escenas().front().inicial;
    esperado.cuando = support::noon;
    EXPECT_EQ(publicado(), esperado);
}

TEST_F(AnfitrionTest, DoesWhatAWidgetAsksFor) {
    Anfitrion anfitrion = abrir();
    reloj.ahora = support::noon.addingTimeInterval(5);
    anfitrion.atender(Peticion::volumen("org.ejemplo.navegador", 0.55));
    EXPECT_EQ(publicado().apps.at(1).nivel, 0.55);
    EXPECT_EQ(publicado().cuando, reloj.ahora);
    EXPECT_TRUE(avisos.empty());
}

TEST_F(AnfitrionTest, HasAReasonForEveryRefusal) {
    Anfitrion anfitrion = abrir();
    reloj.ahora = support::noon.addingTimeInterval(5);
    for (const Peticion& peticion :
         {Peticion::silenciar("nadie", true), Peticion::ponerPerfil("ninguno"),
          Peticion::volumen("org.ejemplo.navegador", 1.5)})
        anfitrion.atender(peticion);
    anfitrion.rechazar("no es JSON");
    EXPECT_EQ(publicado().cuando, support::noon);
    Escena soloMirar = escenas().front();
    soloMirar.inicial.dejaCambiar = false;
    Anfitrion cerrado = abrir(soloMirar);
    cerrado.atender(Peticion::alternarEncendido());
    EXPECT_EQ(avisos, (std::vector<std::string>{
                          "rechazada: no hay ninguna app con ese id: %@",
                          "rechazada: no hay ningún perfil con ese id: %@",
                          "rechazada: el nivel va de 0 a 1: %@",
                          "no se puede leer la petición: %@",
                          "rechazada: los widgets no pueden cambiar nada: %@",
                      }));
}

TEST_F(AnfitrionTest, NeverLetsItsSnapshotGrowOld) {
    Escena quieta = escenas().front();
    quieta.pasos.clear();
    Anfitrion anfitrion = abrir(quieta);
    for (int vuelta = 0; vuelta < 20; ++vuelta) {
        reloj.ahora = reloj.ahora.addingTimeInterval(anfitrion.segundosHastaSeguir());
        anfitrion.seguir();
        EXPECT_LT(reloj.ahora.timeIntervalSince(publicado().cuando), 900);
        EXPECT_GT(anfitrion.segundosHastaSeguir(), 0);
    }
}

TEST_F(AnfitrionTest, IsNotPutOffByAClockThatIsSetBack) {
    Anfitrion anfitrion = abrir();
    for (const double segundos : {-1.0, -3600.0, -1e7, -1e12}) {
        reloj.ahora = support::noon.addingTimeInterval(segundos);
        anfitrion.seguir();
        EXPECT_GE(anfitrion.segundosHastaSeguir(), 0);
        EXPECT_LE(anfitrion.segundosHastaSeguir(), 300);
    }
}

TEST_F(AnfitrionTest, PlaysItsStepsOverAndOver) {
    Escena escena = escenas().front();
    escena.pasos = {{10, [](auto& e) { e.perfil = "A"; }}, {5, [](auto& e) { e.perfil = "B"; }}};
    Anfitrion anfitrion = abrir(escena);
    const auto perfilA = [&](double segundos) {
        reloj.ahora = support::noon.addingTimeInterval(segundos);
        anfitrion.seguir();
        return publicado().perfil;
    };
    EXPECT_EQ(perfilA(9.9), "Música");
    EXPECT_EQ(perfilA(10), "A");
    EXPECT_EQ(perfilA(14), "A");
    EXPECT_EQ(perfilA(15), "B");
    EXPECT_EQ(perfilA(25), "A");
    EXPECT_EQ(perfilA(60), "B");
}

TEST_F(AnfitrionTest, LivesOnWhereItCannotPublish) {
    Anfitrion anfitrion = abrir();
    mundo.files.writeError = ENOSPC;
    reloj.ahora = support::noon.addingTimeInterval(1000);
    anfitrion.seguir();
    EXPECT_EQ(avisos, std::vector<std::string>{"no se puede publicar el estado: %@"});
}

TEST(Escenas, EachHasANameOfItsOwnAndProfilesThatFit) {
    std::vector<std::string> nombres;
    for (const Escena& escena : escenas()) {
        EXPECT_EQ(std::count(nombres.begin(), nombres.end(), escena.nombre), 0) << escena.nombre;
        nombres.push_back(escena.nombre);
        EXPECT_EQ(std::count_if(escena.inicial.perfiles.begin(), escena.inicial.perfiles.end(),
                                [](const auto& perfil) { return perfil.puesto; }),
                  1)
            << escena.nombre;
        for (const Paso& paso : escena.pasos)
            EXPECT_GT(paso.segundos, 0) << escena.nombre;
    }
    EXPECT_EQ(nombres.size(), 6u);
}

}  // namespace
}  // namespace anfitrion

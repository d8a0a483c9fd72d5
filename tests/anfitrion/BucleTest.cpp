#include "anfitrion/Bucle.hpp"
#include "estado/CargarEstado.hpp"
#include "peticiones/Pedir.hpp"
#include "platform/foundation/SystemClock.hpp"
#include "platform/foundation/files/DefaultFileManager.hpp"
#include "platform/foundation/notifications/SessionBusNotificationCenter.hpp"
#include "support/PrivateSessionBus.hpp"
#include "support/World.hpp"

#include <gtest/gtest.h>
#include <pthread.h>

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <functional>
#include <future>
#include <system_error>
#include <thread>

namespace anfitrion {
namespace {

using namespace std::chrono_literals;
using nurva::GrupoDeApps::pedir;
using nurva::GrupoDeApps::Peticion;

/// A user with a session bus, for whom a scene is played in a thread of its own.
struct BucleTest : testing::Test {
    BucleTest() { std::filesystem::create_directories(contenedor()); }

    std::filesystem::path contenedor() const {
        return casa.path() / "group-containers/group.org.nurva.Nurva";
    }
    std::string perfil() const {
        const auto estado = nurva::cargarEstado(entorno);
        return estado ? estado->perfil : "";
    }
    bool prendido() const { return nurva::cargarEstado(entorno).value().prendido; }

    static bool pronto(const std::function<bool()>& condicion) {
        const auto limite = std::chrono::steady_clock::now() + 60s;
        while (!condicion()) {
            if (std::chrono::steady_clock::now() > limite)
                return false;
            std::this_thread::sleep_for(5ms);
        }
        return true;
    }

    /// Plays the scene; its end is the future's. Only its own thread is asked to end.
    std::future<void> empezar(Escena escena) {
        std::packaged_task<void()> funcion([this, escena = std::move(escena)] {
            representar(escena, contenedor(), entorno, [](std::string_view, const auto&) {});
        });
        std::future<void> fin = funcion.get_future();
        hilo = std::thread(std::move(funcion));
        return fin;
    }
    void terminar(int senal) { ASSERT_EQ(::pthread_kill(hilo.native_handle(), senal), 0); }

    ~BucleTest() override {
        if (hilo.joinable())
            hilo.join();
    }

    support::PrivateSessionBus bus;
    support::TemporaryFolder casa;
    foundation::SystemClock reloj;
    foundation::DefaultFileManager archivos{
        foundation::EnvironmentVariables({{"XDG_DATA_HOME", casa.path()}})};
    foundation::SessionBusNotificationCenter avisos;
    foundation::Environment entorno{reloj, archivos, avisos, support::World::spanishBundle(), {}};
    std::thread hilo;
};

Escena escenaQuieta() {
    Escena escena = escenas().front();
    escena.pasos.clear();
    return escena;
}

TEST_F(BucleTest, HearsWhoeverSeesItsFirstSnapshotUntilItIsAskedToEnd) {
    for (const int senal : {SIGTERM, SIGINT}) {
        std::filesystem::remove(contenedor() / nurva::archivoDeEstado);
        std::future<void> fin = empezar(escenaQuieta());
        EXPECT_TRUE(pronto([&] { return perfil() == escenaQuieta().inicial.perfil; }));
        pedir(Peticion::alternarEncendido(), entorno);
        EXPECT_TRUE(pronto([&] { return !prendido(); }));
        pedir(Peticion::alternarEncendido(), entorno);
        EXPECT_TRUE(pronto([&] { return prendido(); }));
        terminar(senal);
        EXPECT_NO_THROW(fin.get());
        hilo.join();
    }
}

TEST_F(BucleTest, DoesNothingTwiceThatItIsToldOfTwice) {
    std::future<void> fin = empezar(escenaQuieta());
    EXPECT_TRUE(pronto([&] { return perfil() == escenaQuieta().inicial.perfil; }));
    pedir(Peticion::alternarEncendido(), entorno);
    EXPECT_TRUE(pronto([&] { return !prendido(); }));
    avisos.post(nurva::GrupoDeApps::nombreDeNotificacion());
    pedir(Peticion::ponerPerfil("cine"), entorno);
    EXPECT_TRUE(pronto([&] { return perfil() == "Cine"; }));
    EXPECT_FALSE(prendido());
    terminar(SIGTERM);
    EXPECT_NO_THROW(fin.get());
}

TEST_F(BucleTest, GoesOnWithTheSceneThoughNobodyAsksForAnything) {
    Escena escena = escenaQuieta();
    escena.pasos = {{0.05, [](auto& estado) { estado.perfil += "+"; }}};
    std::future<void> fin = empezar(escena);
    EXPECT_TRUE(pronto([&] { return perfil().ends_with("+++"); }));
    terminar(SIGTERM);
    EXPECT_NO_THROW(fin.get());
}

TEST_F(BucleTest, SaysThatThereIsNoBus) {
    bus.end();
    EXPECT_THROW(empezar(escenaQuieta()).get(), std::system_error);
    EXPECT_EQ(perfil(), "");
}

TEST_F(BucleTest, SaysThatTheBusHasGone) {
    std::future<void> fin = empezar(escenaQuieta());
    EXPECT_TRUE(pronto([&] { return !perfil().empty(); }));
    bus.end();
    EXPECT_THROW(fin.get(), std::system_error);
}

}  // namespace
}  // namespace anfitrion

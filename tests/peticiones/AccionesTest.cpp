#include "peticiones/Acciones.hpp"
#include "peticiones/AlternarEncendido.hpp"
#include "peticiones/PonerPerfil.hpp"
#include "peticiones/PonerVolumen.hpp"
#include "peticiones/SilenciarApp.hpp"
#include "platform/intents/ActionRuntime.hpp"
#include "support/World.hpp"

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <vector>

namespace {

using intents::IntentResult;
using nurva::AlternarEncendido;
using nurva::PonerPerfil;
using nurva::PonerVolumen;
using nurva::SilenciarApp;

struct Acciones : testing::Test {
    Acciones() { world.files.containers["group.org.nurva.Nurva"] = "/contenedor"; }

    /// What is written when the action runs: at once, and as a control would have it run.
    std::string written(const intents::AppIntent auto& action) {
        EXPECT_EQ(action.perform(world.environment), IntentResult::result());
        const std::string atOnce = world.files.files["/contenedor/peticion.json"];
        world.files.files.clear();
        intents::ActionRuntime runtime(nurva::acciones());
        EXPECT_EQ(runtime.perform(intents::archived(action), world.environment).get(),
                  IntentResult::result());
        EXPECT_EQ(world.files.files["/contenedor/peticion.json"], atOnce);
        return atOnce;
    }

    support::World world;
};

TEST_F(Acciones, SendTheirRequest) {
    EXPECT_EQ(written(PonerVolumen("a", 0.5)), R"({"volumen":{"app":"a","nivel":0.5}})");
    EXPECT_EQ(written(SilenciarApp("a", true)), R"({"silenciar":{"app":"a","si":true}})");
    EXPECT_EQ(written(SilenciarApp("a", false)), R"({"silenciar":{"app":"a","si":false}})");
    EXPECT_EQ(written(AlternarEncendido()), R"({"alternarEncendido":{}})");
    EXPECT_EQ(written(PonerPerfil("p1")), R"({"ponerPerfil":{"_0":"p1"}})");
    EXPECT_EQ(written(PonerPerfil("")), R"({"ponerPerfil":{"_0":""}})");
    EXPECT_EQ(world.notifications.posted(),
              std::vector<std::string>(12, "org.nurva.Nurva.peticionDeWidget"));
}

TEST_F(Acciones, PassALevelOutOfRangeThrough) {
    EXPECT_EQ(written(PonerVolumen("a", 1.2)), R"({"volumen":{"app":"a","nivel":1.2}})");
    EXPECT_EQ(written(PonerVolumen("a", -3)), R"({"volumen":{"app":"a","nivel":-3}})");
}

TEST_F(Acciones, RunTwiceWriteAndPostTwice) {
    const AlternarEncendido alternar;
    alternar.perform(world.environment);
    alternar.perform(world.environment);
    EXPECT_EQ(world.files.writes(), 2u);
    EXPECT_EQ(world.notifications.posted().size(), 2u);
}

TEST_F(Acciones, FinishWithAnEmptyResultThoughNothingCanBeSent) {
    const PonerVolumen sinNivel("a", std::numeric_limits<double>::quiet_NaN());
    EXPECT_EQ(sinNivel.perform(world.environment), IntentResult::result());
    world.files.containers.clear();
    EXPECT_EQ(PonerPerfil("p").perform(world.environment), IntentResult::result());
    EXPECT_EQ(world.files.writes(), 0u);
    EXPECT_TRUE(world.notifications.posted().empty());
}

TEST_F(Acciones, DeclareTheirParametersWithoutValues) {
    const PonerVolumen volumen;
    EXPECT_EQ(volumen.clave.value, std::nullopt);
    EXPECT_EQ(volumen.nivel.value, std::nullopt);
    EXPECT_EQ(SilenciarApp().silenciar.value, std::nullopt);
    EXPECT_EQ(PonerPerfil().id.value, std::nullopt);
    EXPECT_EQ(PonerVolumen("a", 0.5).nivel.controlStyle, intents::ControlStyle::stepper);
    EXPECT_EQ(PonerVolumen("a", 0.5).nivel.title, "Nivel");
}

TEST(AccionesRegistradas, AreTheFourWithTheirTitlesAndParameters) {
    std::string all;
    for (const auto& action : nurva::acciones().descriptions()) {
        all += std::string(action.identifier) + ": " + std::string(action.title) + "\n";
        for (const auto& parameter : action.parameters)
            all += "  " + std::string(parameter.name) + " " + std::string(parameter.title) + " " +
                   std::to_string(static_cast<int>(parameter.type)) +
                   (parameter.controlStyle == intents::ControlStyle::stepper ? " stepper\n" : "\n");
    }
    EXPECT_EQ(all,
              "PonerVolumen: Poner el volumen de una app\n"
              "  clave App 0\n"
              "  nivel Nivel 2 stepper\n"
              "SilenciarApp: Silenciar una app\n"
              "  clave App 0\n"
              "  silenciar Silenciar 1\n"
              "AlternarEncendido: Encender o apagar el ecualizador\n"
              "PonerPerfil: Poner un perfil\n"
              "  id Perfil 0\n");
}

}  // namespace

#include "estado/EstadoParaWidgets.hpp"
#include "support/Hex.hpp"
#include "support/SharedData.hpp"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <cmath>
#include <fstream>
#include <functional>
#include <limits>
#include <string>
#include <vector>

namespace {

using nurva::AppCorta;
using nurva::EstadoParaWidgets;
using nurva::PerfilCorto;

constexpr double nan = std::numeric_limits<double>::quiet_NaN();

EstadoParaWidgets example() {
    auto estado = EstadoParaWidgets::porDefecto({10});
    estado.cuartoAhora = 1;
    estado.cuartoAntes = 2;
    estado.idioma = "es";
    estado.perfiles = {{"p", "P", {1, 2}, true}};
    estado.apps = {{"a", "A", 0.5, false, true}};
    return estado;
}

TEST(EstadoParaWidgetsEquality, HoldsForACopy) {
    EXPECT_EQ(example(), example());
}

TEST(EstadoParaWidgetsEquality, SeesEveryField) {
    const std::vector<std::function<void(EstadoParaWidgets&)>> changes{
        [](auto& e) { e.perfil = "x"; },
        [](auto& e) { e.razon = "x"; },
        [](auto& e) { e.curva[12] = 1; },
        [](auto& e) { e.curva.pop_back(); },
        [](auto& e) { e.prendido = false; },
        [](auto& e) { e.automatico = false; },
        [](auto& e) { e.salida = "x"; },
        [](auto& e) { e.salidaMedida = true; },
        [](auto& e) { e.cuartoAhora = 3; },
        [](auto& e) { e.cuartoAhora.reset(); },
        [](auto& e) { e.cuartoAntes = 3; },
        [](auto& e) { e.cuartoAntes.reset(); },
        [](auto& e) { e.medidoHace = "x"; },
        [](auto& e) { e.salidasSinMedir = 1; },
        [](auto& e) { e.perfiles.clear(); },
        [](auto& e) { e.perfiles[0].id = "x"; },
        [](auto& e) { e.perfiles[0].nombre = "x"; },
        [](auto& e) { e.perfiles[0].curva[1] = 0; },
        [](auto& e) { e.perfiles[0].puesto = false; },
        [](auto& e) { e.apps.clear(); },
        [](auto& e) { e.apps[0].id = "x"; },
        [](auto& e) { e.apps[0].nombre = "x"; },
        [](auto& e) { e.apps[0].nivel = 0; },
        [](auto& e) { e.apps[0].silenciada = true; },
        [](auto& e) { e.apps[0].suena = false; },
        [](auto& e) { e.dejaCambiar = true; },
        [](auto& e) { e.acento = 0xFF5CE49A; },
        [](auto& e) { e.idioma = "en"; },
        [](auto& e) { e.idioma.reset(); },
        [](auto& e) { e.idioma = ""; },
        [](auto& e) { e.cuando = {std::nextafter(10.0, 11.0)}; },
    };
    for (std::size_t i = 0; i < changes.size(); ++i) {
        EstadoParaWidgets changed = example();
        changes[i](changed);
        EXPECT_FALSE(changed == example()) << "change " << i;
        EXPECT_TRUE(changed == changed) << "change " << i;
    }
}

TEST(EstadoParaWidgetsEquality, ComparesStringsByTheirCharacters) {
    const std::string composed = "Música";
    const std::string decomposed = "Mu\u0301sica";
    const AppCorta app{composed, composed, 0, false, false};
    EXPECT_EQ(app, (AppCorta{decomposed, decomposed, 0, false, false}));
    const PerfilCorto perfil{composed, composed, {}, false};
    EXPECT_EQ(perfil, (PerfilCorto{decomposed, decomposed, {}, false}));

    EstadoParaWidgets other = example();
    other.perfil = decomposed;
    EXPECT_EQ(other, example());
    other.idioma = decomposed;
    EstadoParaWidgets another = example();
    another.idioma = composed;
    EXPECT_EQ(other, another);
}

TEST(EstadoParaWidgetsEquality, TellsCharactersApartThatOnlyLookAlike) {
    const auto named = [](const std::string& name) { return AppCorta{"", name, 0, false, false}; };
    EXPECT_FALSE(named("ﬁ") == named("fi"));
    EXPECT_FALSE(named("a") == named("A"));
    EXPECT_FALSE(named(std::string("a\0b", 3)) == named("a"));
}

TEST(EstadoParaWidgetsEquality, AgreesWithThePlatformOnStrings) {
    const auto file = support::sharedData("oracle/text-and-numbers.json");
    if (!file) {
        GTEST_SKIP() << "the recorded answers are not here";
    }
    std::ifstream stream(*file);
    const auto answers = nlohmann::json::parse(stream);
    int count = 0;
    for (const auto& pair : answers["igualdadDeCadenas"]) {
        const auto text = [&](const char* side) {
            return support::bytesFromHex(pair[side]["hex"].get<std::string>());
        };
        EstadoParaWidgets a = example();
        EstadoParaWidgets b = example();
        a.perfil = text("a");
        b.perfil = text("b");
        EXPECT_EQ(a == b, pair["estadoPerfil"].get<bool>()) << pair["nota"];
        a.perfil = b.perfil;
        a.idioma = text("a");
        b.idioma = text("b");
        EXPECT_EQ(a == b, pair["estadoIdioma"].get<bool>()) << pair["nota"];
        EXPECT_EQ((AppCorta{"", text("a"), 0, false, false}) ==
                      (AppCorta{"", text("b"), 0, false, false}),
                  pair["appCorta"].get<bool>())
            << pair["nota"];
        ++count;
    }
    EXPECT_EQ(count, 55);
}

TEST(EstadoParaWidgetsEquality, ComparesNumbersAsNumbers) {
    EstadoParaWidgets a = example();
    EstadoParaWidgets b = example();
    a.curva = {0.0};
    b.curva = {-0.0};
    a.cuando = {0.0};
    b.cuando = {-0.0};
    EXPECT_EQ(a, b);
    for (const auto& change : std::vector<std::function<void(EstadoParaWidgets&)>>{
             [](auto& e) { e.curva = {nan}; },
             [](auto& e) { e.cuartoAhora = nan; },
             [](auto& e) { e.apps[0].nivel = nan; },
             [](auto& e) { e.cuando = {nan}; },
         }) {
        EstadoParaWidgets c = example();
        change(c);
        EXPECT_FALSE(c == EstadoParaWidgets(c));
    }
}

}  // namespace

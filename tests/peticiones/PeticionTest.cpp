#include "peticiones/Peticion.hpp"
#include "platform/foundation/json/JSONDecoder.hpp"
#include "platform/foundation/json/JSONEncoder.hpp"
#include "support/Hex.hpp"
#include "support/SharedData.hpp"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <array>
#include <cmath>
#include <fstream>
#include <limits>
#include <string>
#include <utility>
#include <vector>

namespace {

using foundation::DecodingError;
using nurva::GrupoDeApps::Peticion;

constexpr double nan = std::numeric_limits<double>::quiet_NaN();
constexpr double infinity = std::numeric_limits<double>::infinity();

std::string encoded(const Peticion& peticion) {
    return foundation::JSONEncoder().encode(peticion);
}

Peticion decoded(const std::string& text) {
    return foundation::JSONDecoder().decode<Peticion>(text);
}

/// Kind and place of the error.
std::string refusal(const std::string& text) {
    try {
        decoded(text);
        return "none";
    } catch (const DecodingError& error) {
        return std::string(name(error.kind)) + " " + error.place();
    }
}

TEST(Peticion, IsAnObjectOfOneMemberNamedAfterTheCase) {
    for (const auto& [peticion, text] : std::vector<std::pair<Peticion, std::string>>{
             {Peticion::ponerPerfil("p1"), R"({"ponerPerfil":{"_0":"p1"}})"},
             {Peticion::ponerPerfil(""), R"({"ponerPerfil":{"_0":""}})"},
             {Peticion::ponerPerfil("a/b\"\\\n\x01ñ"),
              R"({"ponerPerfil":{"_0":"a\/b\"\\\n\u0001ñ"}})"},
             {Peticion::alternarEncendido(), R"({"alternarEncendido":{}})"},
             {Peticion::silenciar("a", true), R"({"silenciar":{"app":"a","si":true}})"},
             {Peticion::silenciar("a", false), R"({"silenciar":{"app":"a","si":false}})"},
             {Peticion::volumen("a", 0.5), R"({"volumen":{"app":"a","nivel":0.5}})"},
             {Peticion::volumen("a", 1), R"({"volumen":{"app":"a","nivel":1}})"},
             {Peticion::volumen("a", 1.5), R"({"volumen":{"app":"a","nivel":1.5}})"},
             {Peticion::volumen("a", -0.2), R"({"volumen":{"app":"a","nivel":-0.2}})"},
             {Peticion::volumen("a", 1e-9), R"({"volumen":{"app":"a","nivel":1e-09}})"},
         }) {
        EXPECT_EQ(encoded(peticion), text);
        EXPECT_EQ(decoded(text), peticion);
    }
}

TEST(Peticion, MutesNothingAndPlaysNothingUnlessItSaysSo) {
    EXPECT_EQ(Peticion{Peticion::Silenciar{.app = "a"}}, Peticion::silenciar("a", false));
    EXPECT_EQ(Peticion{Peticion::Volumen{.app = "a"}}, Peticion::volumen("a", 0));
}

TEST(Peticion, CarriesEveryLevelUnchanged) {
    for (int step = -200; step <= 1700; ++step) {
        const double nivel = step / 1000.0 + 1e-17;
        const auto copy = decoded(encoded(Peticion::volumen("a", nivel)));
        EXPECT_EQ(std::get<Peticion::Volumen>(copy.caso).nivel, nivel);
    }
}

TEST(Peticion, ALevelThatIsNoNumberCannotBeEncoded) {
    for (const double nivel : {nan, -nan, infinity, -infinity})
        EXPECT_THROW(encoded(Peticion::volumen("a", nivel)), foundation::EncodingError);
}

TEST(Peticion, NamesItsKeysAfterTheCases) {
    using enum Peticion::CodingKeys;
    EXPECT_EQ(nombre(ponerPerfil), "ponerPerfil");
    EXPECT_EQ(nombre(alternarEncendido), "alternarEncendido");
    EXPECT_EQ(nombre(silenciar), "silenciar");
    EXPECT_EQ(nombre(volumen), "volumen");
    EXPECT_EQ(Peticion::volumen("a", 1).clave(), volumen);
    EXPECT_EQ(std::get<0>(Peticion::PonerPerfilCodingKeys).name, "_0");
    EXPECT_EQ(std::get<0>(Peticion::SilenciarCodingKeys).name, "app");
    EXPECT_EQ(std::get<1>(Peticion::SilenciarCodingKeys).name, "si");
    EXPECT_EQ(std::get<0>(Peticion::VolumenCodingKeys).name, "app");
    EXPECT_EQ(std::get<1>(Peticion::VolumenCodingKeys).name, "nivel");
    EXPECT_EQ(
        std::tuple_size_v<std::remove_cvref_t<decltype(Peticion::AlternarEncendidoCodingKeys)>>,
        0u);
}

TEST(Peticion, NeedsExactlyOneOfItsKeys) {
    const std::array members{R"("ponerPerfil":{"_0":"p"})", R"("alternarEncendido":{})",
                             R"("silenciar":{"app":"a","si":true})",
                             R"("volumen":{"app":"a","nivel":1})"};
    std::vector<std::string> texts{"{}", R"({"x":1})", R"({"Volumen":{"app":"a","nivel":1}})",
                                   R"({"volumen ":{"app":"a","nivel":1}})", R"({"":{}})"};
    for (const std::string one : members)
        for (const std::string other : members)
            if (one != other)
                texts.push_back("{" + one + "," + other + "}");
    for (const std::string& text : texts) {
        try {
            decoded(text);
            ADD_FAILURE() << text;
        } catch (const DecodingError& error) {
            EXPECT_EQ(error.kind, DecodingError::Kind::typeMismatch) << text;
            EXPECT_EQ(error.debugDescription, "Invalid number of keys found, expected one.");
            EXPECT_EQ(error.codingPath, "");
        }
    }
}

TEST(Peticion, IgnoresWhatItDoesNotKnowAndTheOrderOfMembers) {
    const auto volumen = Peticion::volumen("a", 0.5);
    EXPECT_EQ(decoded(R"({"x":null,"volumen":{"nivel":0.5,"y":[1],"app":"a"},"Silenciar":{}})"),
              volumen);
    EXPECT_EQ(decoded(R"( { "volumen" : { "nivel" : 5e-1 , "app" : "\u0061" } } )"), volumen);
    EXPECT_EQ(decoded(R"({"alternarEncendido":{"app":1}})"), Peticion::alternarEncendido());
}

TEST(Peticion, SaysWhatIsWrong) {
    for (const auto& [text, expected] : std::vector<std::pair<std::string, std::string>>{
             {R"({"silenciar":{"app":"a"}})", "keyNotFound silenciar.si"},
             {R"({"silenciar":{"si":true}})", "keyNotFound silenciar.app"},
             {R"({"volumen":{"app":"a"}})", "keyNotFound volumen.nivel"},
             {R"({"volumen":{"nivel":1}})", "keyNotFound volumen.app"},
             {R"({"ponerPerfil":{"0":"p"}})", "keyNotFound ponerPerfil._0"},
             {R"({"ponerPerfil":"p"})", "typeMismatch ponerPerfil"},
             {R"({"ponerPerfil":{"_0":1}})", "typeMismatch ponerPerfil._0"},
             {R"({"silenciar":{"app":"a","si":1}})", "typeMismatch silenciar.si"},
             {R"({"silenciar":{"app":"a","si":"true"}})", "typeMismatch silenciar.si"},
             {R"({"volumen":{"app":"a","nivel":"1"}})", "typeMismatch volumen.nivel"},
             {R"({"volumen":{"app":"a","nivel":true}})", "typeMismatch volumen.nivel"},
             {R"({"volumen":{"app":"a","nivel":null}})", "valueNotFound volumen.nivel"},
             {R"({"alternarEncendido":[]})", "typeMismatch alternarEncendido"},
             {R"({"alternarEncendido":null})", "valueNotFound alternarEncendido"},
             {R"([{"alternarEncendido":{}}])", "typeMismatch "},
             {R"({"alternarEncendido":{}})"
              "x",
              "dataCorrupted "},
             {R"({"alternarEncendido":{)", "dataCorrupted "},
             {"", "dataCorrupted "},
         })
        EXPECT_EQ(refusal(text), expected) << text;
}

TEST(Peticion, IsEqualToTheSameCaseWithTheSameValues) {
    const std::vector<Peticion> distinct{
        Peticion::ponerPerfil(""),       Peticion::ponerPerfil("a"),
        Peticion::alternarEncendido(),   Peticion::silenciar("a", true),
        Peticion::silenciar("a", false), Peticion::silenciar("b", true),
        Peticion::volumen("a", 0),       Peticion::volumen("a", 1),
        Peticion::volumen("b", 1),       Peticion::volumen("a", infinity)};
    for (std::size_t i = 0; i < distinct.size(); ++i)
        for (std::size_t j = 0; j < distinct.size(); ++j)
            EXPECT_EQ(distinct[i] == distinct[j], i == j) << i << " and " << j;
    EXPECT_EQ(Peticion::volumen("a", 0.0), Peticion::volumen("a", -0.0));
    EXPECT_FALSE(Peticion::volumen("a", nan) == Peticion::volumen("a", nan));
}

TEST(Peticion, ComparesIdsAsThePlatformDoes) {
    const auto file = support::sharedData("oracle/text-and-numbers.json");
    if (!file)
        GTEST_SKIP() << "the recorded answers are not here";
    std::ifstream stream(*file);
    const auto answers = nlohmann::json::parse(stream);
    int count = 0;
    for (const auto& pair : answers["igualdadDeCadenas"]) {
        const std::string a = support::bytesFromHex(pair["a"]["hex"].get<std::string>());
        const std::string b = support::bytesFromHex(pair["b"]["hex"].get<std::string>());
        EXPECT_EQ(Peticion::ponerPerfil(a) == Peticion::ponerPerfil(b),
                  pair["ponerPerfil"].get<bool>())
            << pair["nota"];
        EXPECT_EQ(Peticion::silenciar(a, true) == Peticion::silenciar(b, true),
                  pair["silenciar"].get<bool>())
            << pair["nota"];
        EXPECT_EQ(Peticion::volumen(a, 1) == Peticion::volumen(b, 1), pair["volumen"].get<bool>())
            << pair["nota"];
        ++count;
    }
    EXPECT_EQ(count, 55);
}

TEST(Peticion, TakesEveryCompositionOfACharacterForTheSame) {
    EXPECT_EQ(Peticion::ponerPerfil("Música"), Peticion::ponerPerfil("Mu\u0301sica"));
    EXPECT_EQ(Peticion::silenciar("é", true), Peticion::silenciar("e\u0301", true));
    EXPECT_EQ(Peticion::volumen("é", 1), Peticion::volumen("e\u0301", 1));
    EXPECT_FALSE(Peticion::ponerPerfil("ﬁ") == Peticion::ponerPerfil("fi"));
}

}  // namespace
